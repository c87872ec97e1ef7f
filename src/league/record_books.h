// The record books: one Records row for each school, one for each conference
// and one "National", all with empty groups until the first season's end.
#pragma once

namespace courtmere {

class Store;

// A fresh set of rows, replacing any there are.
void CreateRecords(Store& store);

}  // namespace courtmere
