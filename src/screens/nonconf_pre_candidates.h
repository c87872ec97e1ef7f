// The candidates of the pre-conference view. The j-th game of the list draws
// its candidates from background teams or from first-division schools of
// other conferences, within a prestige bound worked out from the user's
// prestige P:
//
//   1 background, below P/2 + 10       5 background, below P/3 + 20
//   2 background, at least P - 15      6 background, below P
//   3 first division, at least P/2+10  7 first division, below P/3 + 20
//   4 first division, below P - 15     8 first division, below P
//
// P is raised to 40 for background rows and to 50 for first-division rows.
// Games 1 and 2 refuse a school that plays in a preseason tournament.
#pragma once

#include <string>
#include <vector>

#include "screens/nonconf_schools.h"

namespace courtmere {

class Store;
class Rng;

struct PreConferenceContext {
  std::string team;
  UserPrestige user;
  std::vector<std::string> presentOpponents;  // of every game in the view
};

// Up to eight candidates for the game at `position`, after the entries of
// `listed` (the present opponent). Background teams are walked by prestige
// from a random one of the first seven, first-division schools from the
// strongest; a walk looks at 200 schools at most.
std::vector<NonConfChoice> PreConferenceCandidates(Store& store, Rng& rng,
                                                   const PreConferenceContext& context,
                                                   int position,
                                                   const std::vector<NonConfChoice>& listed);

// True when `school` meets the rules of the game at `position`.
bool FitsPreConferenceGame(Store& store, const PreConferenceContext& context, int position,
                           const std::string& school);

}  // namespace courtmere
