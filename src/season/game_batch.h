// The games of a day: which run, in what order, with what handed to the
// engine, and what is stored afterwards.
//
// A batch plays its games one after the other through the engine, writes
// each result into its schedule row as the game ends, and records the
// players' and teams' figures of all its games at the end (the engine keeps
// up to 150 games' lines until then). Every game is a full game of the
// engine, background teams' included.
//
// Files: with the option "Save Box Scores to Disk" every game's box score is
// written; without it only the games of the user's list are, so that the
// screen can still open them. The user's listed games also get a
// play-by-play log when "View Play-By-Play" is set. Design decision: the
// batch writes each box score itself once the game is over, so that a
// failed write (a full disk) raises an error that ends the day step, rather
// than a game stored without its file.
#pragma once

#include <string>

namespace courtmere {

struct SeasonRun;

// The most games a batch holds before its lines are recorded.
inline constexpr int kBatchGames = 150;

// Plays the unplayed games of the screen's list in order, the user's game
// (first) live when a coaching box is ticked, with the seeds' court edge in week 17.
// False when a game could not be played: the day step stops.
bool SimListedGames(SeasonRun& run);

// Plays the unplayed games of `conference` ("NonConference" for the
// non-conference table) on `day` of `week`, in game-number order. False when
// a game could not be played, which ends the batch.
bool SimConferenceGames(SeasonRun& run, const std::string& day, const std::string& conference,
                        int week);

// The court edge of a first-round pairing in week 17: +2 for 1 against 16,
// -2 for 4 against 13 and 5 against 12, else 0.
int SeedCourtEdge(int homeSeed, int awaySeed);

// A leader's cell: his name without its first three characters, "-" and
// the number ("J. Smith", 24 gives "Smith-24").
std::string LeaderCell(const std::string& abbrName, int value);

}  // namespace courtmere
