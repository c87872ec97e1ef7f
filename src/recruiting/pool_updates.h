// The recruit pool's changes during the season: the scouts' two updates of
// the high-school figures, and the best prospects who skip college for the
// NBA draft. The day step sends the letters that tell the user.
#pragma once

#include <string>

namespace courtmere {

struct Session;

// Fresh PPG, APG, RPG, SPG and TOs for every high-school recruit, and the
// scouts' report number `report` appended to his ScoutingReport.
void UpdateRecruitStats(Session& session, int report);

// Whether an "Exc" recruit goes to the draft on the draw `roll` (1 to 100):
// a poor student (GPA below 2) of Overall above 67 on a roll below 70, any
// other of Overall above 71 on a roll below 40.
bool GoesToDraft(const std::string& recruitType, double gpa, int overall, int roll);

// Marks the recruits who go (NBAFlag 1, InEligible 1, TeamChoice 'NBA').
void DeclareNBARecruits(Session& session);

}  // namespace courtmere
