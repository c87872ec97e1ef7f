// Begin Offseason, after the draft: the leavers (seniors and everybody
// marked for the draft) go with their statistics and training rows, the
// oldest year of season lines goes, the season's statistics start again at
// 0, suspensions end, and the dynasty stands in "Begin OffSeason".
#pragma once

namespace courtmere {

struct Session;

enum class OffseasonBegin {
  kBegun,
  kRefused,   // fired without a school, or no school chosen; the user was told
  kDeclined,  // the user answered No
};

OffseasonBegin BeginOffseason(Session& session);

// The steps after the confirmation, in one transaction.
void RemoveLeaversAndResetSeason(Session& session);

}  // namespace courtmere
