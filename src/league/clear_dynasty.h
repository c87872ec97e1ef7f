// Emptying the store of a dynasty: every table the game fills, in a fixed
// order, and the Config row back to the first day of a new dynasty. The seed
// tables (schools, conferences, name pools, high schools, injuries,
// professional teams and the list of cities) keep their rows.
#pragma once

namespace courtmere {

class Store;

void ClearDynasty(Store& store);

}  // namespace courtmere
