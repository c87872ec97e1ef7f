// The draft-pool files for the two outside professional-league games: every
// player leaving this year (NBAFlag = 1), best Overall first, one line each
// with his season's figures, or an invented season for a recruit without
// college figures. The JSB file adds seven ratings the game reads on a 1
// to 7 scale; the FBB file adds his reach, schedule strength, potential and
// college.
#pragma once

#include <string>

namespace courtmere {

struct Session;

// The text of "JSBdraftpool<year>.csv". Draws from the session's generator
// (ages of recruits, intangibles, invented lines).
std::string JsbDraftPool(Session& session);

// The text of "FBBdraftpool<year>.txt".
std::string FbbDraftPool(Session& session);

}  // namespace courtmere
