// The day step: one press of Sim Day, the program's main loop.
//
// A step plays the day's games (the user's list first, then the other
// non-conference games and every other conference's), and on the last day
// of a week runs that week's end; then the calendar moves on, the user
// hears of his injured, and the computer's lineups are set for the next
// day. The step of week 20's Monday ends the season.
//
// A step is one transaction. When it cannot finish (an error, a game that
// could not be played in the user's list) the store stays at the end of the
// previous day and so do the season's figures in memory; the same day can
// be pressed again, and plays whole, since only rows with HomeScore 0 are
// played. Design decision: a stopped step keeps nothing of its day, not even
// the games it played before it stopped, so that no stored score lacks its
// statistics.
#pragma once

namespace courtmere {

struct SeasonRun;

enum class DayOutcome {
  kPlayed,   // the day is done and stored
  kStopped,  // a guard or a question stopped it, or a listed game was not played
  kFailed,   // an error ended it; the user has been told
};

// Sim Day: the guards, then the step. Afterwards the screen shows the day
// just played with its results.
DayOutcome SimDay(SeasonRun& run);

// The auto-sim's step: no guards, no list, the user's team set like a
// computer team's. The screen is left as it was.
DayOutcome AutoSimDay(SeasonRun& run);

}  // namespace courtmere
