// The auto-sim: the computer takes the user's lineups and recruiting and
// plays day after day until the user stops it or week 15 is reached.
#pragma once

namespace courtmere {

struct SeasonRun;

// Asks the user, then runs AutoSimDay until week 15, a stop, or a day that
// could not be played. Returns the number of days played.
int StartAutoSim(SeasonRun& run);

// Asks the user; on Yes the auto-sim stops once the current day is done.
void StopAutoSim(SeasonRun& run);

}  // namespace courtmere
