// Start Season: the user leaves the offseason for a new season. It is
// refused until his non-conference schedule has four games and his staff
// three coaches, and he is warned of what he can no longer change. Then last
// season is cleared, the recruit pool drawn and ranked, short rosters filled
// with walk-ons, the challenge games scheduled, the teams ranked, the
// computer's rosters set and the assistant's letter written, all in one
// transaction; the store is compacted afterwards. The dynasty then stands on
// Thursday of week 1 in stage "Season".
#pragma once

namespace courtmere {

struct Session;

enum class SeasonStart {
  kStarted,
  kRefused,   // a condition failed; the user was told which
  kDeclined,  // the user answered No to the warning
};

SeasonStart StartSeason(Session& session);

}  // namespace courtmere
