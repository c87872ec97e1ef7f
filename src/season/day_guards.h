// The checks Sim Day makes before a day is played, in order. A refusal
// shows its message and changes nothing; the two questions only stop the
// step on No.
//   1. On a Saturday before week 13, recruiting points still to spend.
//   2. A depth chart that is complete and names only men fit to play.
//   3. An offensive and a defensive coach.
//   4. On the Saturday of week 15, scholarships not all given.
#pragma once

#include <string>

namespace courtmere {

struct SeasonRun;
struct Session;

// The refusal of guard 2 for the user's team, or empty when his chart is fit
// to play.
std::string ChartGuardRefusal(Session& session);
// The refusal of guard 3, or empty when his staff has both game roles.
std::string CoachesGuardRefusal(Session& session);

// True when the day may be played.
bool PassDayGuards(SeasonRun& run);

}  // namespace courtmere
