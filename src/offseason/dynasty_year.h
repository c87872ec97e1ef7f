// A whole year of the dynasty without the desktop: the season played day by
// day to its end, End Season, the draft, Begin Offseason, Train Players and
// Start Season, answering Yes to every question. The user's lineup is set by
// the computer's routines as under the auto-sim. Each command is its own
// transaction and starts from the random stream of its place in the
// calendar, as the command-line tool's single commands do, so a year played
// here ends in the same store as the same year played command by command.
#pragma once

#include <string>

namespace courtmere {

struct SeasonRun;
class CareerSteps;

struct YearSummary {
  int year = 0;          // the season played (the CurrYear it ended with)
  std::string champion;  // the NCT's; empty if the final was not played
  std::string school;    // the user's school that season
  bool fired = false;    // the board fired him after the draft
  std::string moved;     // the school he took after the draft, if any
  int wins = 0;
  int losses = 0;
  int classRank = 0;  // the rank of the user's new class; 0 outside the top 10
};

// Runs the one command of the current stage; false when it was refused or
// declined (the user has been told).
bool AdvanceStage(SeasonRun& run, CareerSteps& career);

// From the current stage to the next season's Thursday of week 1, starting
// the season first when the dynasty stands in "Post Training". Throws
// std::runtime_error when a command refuses.
YearSummary PlayYear(SeasonRun& run, CareerSteps& career);

}  // namespace courtmere
