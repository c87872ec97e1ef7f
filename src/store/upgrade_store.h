// Brings a working store of an older layout up to date. Runs at every load
// and at every File > New, before anything else works on the store.
//
// Two layers. Always: the seed rows that older stores hold wrong (the "12C"
// schedule of conference 4, and the Big 12's divisions, set North then South
// so that the area 'OK' ends in the South). Then, when Records still has the
// old column PGPercentSeasonYear, under the progress text "Updating Save
// Game" and in one transaction: the old percentage and turnover record
// columns give way to the current ones, the tables and columns the old layout
// lacks are added, every player is graded anew and the record books are made
// afresh.
#pragma once

#include <functional>

namespace courtmere {

class Store;
struct Session;

// Grades every Player row anew through his team's scout. The grading rules
// live in a library above the store, so the caller hands them in
// (GradeAllPlayers of people/grade_all_players.h).
using PlayerGrader = std::function<void(Session&)>;

// Design decision: the one-argument form serves File > New, whose blank store
// is never of the old layout; handed an old store it throws StoreError rather
// than leave the players with the grades of the old rules.
void UpgradeStore(Session& session);
void UpgradeStore(Session& session, const PlayerGrader& gradeAllPlayers);

// Whether the store still has the old layout.
bool HasOldLayout(Store& store);

}  // namespace courtmere
