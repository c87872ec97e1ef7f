// The season's game numbers. A number is unique over all schedule tables of
// a season; Config.MaxGameNo holds the last number used.
//
// Design decision: the counter in Config is the last number used, so every
// pass continues after it; the schedule pass at the start of a season begins
// again at 1 when MaxGameNo is 0 or has passed 20000.
#pragma once

namespace courtmere {

class Store;
struct Session;

struct GameCounter {
  int next = 1;  // the number the next game takes

  int Take() { return next++; }
  int Last() const { return next - 1; }
};

// The counter of a new season's schedule pass: after MaxGameNo, or from 1
// when MaxGameNo is 0 or above 20000.
GameCounter StartSeasonCounter(Store& store);
// The counter of a later pass of the same season: after MaxGameNo.
GameCounter ContinueCounter(Store& store);
// Writes the last number used to Config and to the session's copy of it.
void SaveGameCounter(Session& session, const GameCounter& counter);

}  // namespace courtmere
