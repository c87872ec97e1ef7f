// The record books: one Records row for every school, every conference and
// the nation, each holding the best marks of a season and of a career.
#pragma once

namespace courtmere {

class Store;

// A fresh set of books with no marks yet: every Records row is deleted, then
// one row is added for each Team, one for each League and one "National".
// Runs when a dynasty is made and when an old store's books are rebuilt.
void CreateRecords(Store& store);

}  // namespace courtmere
