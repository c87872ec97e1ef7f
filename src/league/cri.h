// The College Rating Index: the program's computer ranking of every school,
// first-division and background alike, in the table CRIRank.
//
// A team's index blends its own winning percentage with that of its
// opponents and of its opponents' opponents:
//   CRI = 0.5 * OppWin + 0.25 * WinPer + 0.25 * OppOppWin
//   SchedStrength = 2/3 * OppWin + 1/3 * OppOppWin
// Every scheduled game up to the current week counts, played or not.
// Background teams have no full schedule: their opponent figures start from
// estimates drawn by their strength, and their index rests on those
// estimates alone.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

struct Session;

// Rewrites CRIRank for the week in session.config: CRIRank, CRIValue, WinPer,
// SchedStrength and SchedRank of every school. Reseeds the generator before
// drawing the background estimates.
void UpdateCRI(Session& session);

}  // namespace courtmere
