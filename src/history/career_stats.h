// A season's individual figures turned into history: each PlayerStats row is
// added to the player's career (CareerPlayerStats) and kept as his line of
// the year (PlayerYearStats). Runs once a year, at the end of the season,
// after the season's figures reach PlayerStats; a second run would double
// the careers, which End Season's transaction and stage prevent.
#pragma once

namespace courtmere {

class Store;

// Adds every PlayerStats row to its career and works the career's averages
// out anew from the career totals; then adds each row's year line for
// `year`. Background players have no PlayerStats row, so they get neither.
void SaveCareerStats(Store& store, int year);

}  // namespace courtmere
