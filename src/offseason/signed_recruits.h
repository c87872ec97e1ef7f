// Signed recruits become players: each school's signed high-school recruits
// join it as Freshmen and its junior-college signings as Juniors. Then the
// recruiting year's decisions go, and every recruit row without a year in
// InEligible; a junior-college prospect who sits out a year stays as 'JC'
// with his rows, and every other unsigned high-school prospect is removed.
#pragma once

namespace courtmere {

struct Session;

void SignedRecruitsToPlayers(Session& session);

}  // namespace courtmere
