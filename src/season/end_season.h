// End Season, behind Progress > End Season once the season is over: the
// season's figures are kept, the teams rated anew with their year's history
// added, the recruits choose their schools, and the dynasty stands in the
// stage "End Season", saved to the autosave when the user asked for it.
#pragma once

namespace courtmere {

struct SeasonRun;

enum class SeasonEnd {
  kEnded,
  kRefused,   // the season is not over; the user was told
  kDeclined,  // the user answered No
};

SeasonEnd EndSeason(SeasonRun& run);

}  // namespace courtmere
