// The standings as the user sees them: a conference's table (one for each
// division where the conference has divisions) ordered by conference wins
// and then overall wins, and the national table of every first-division
// school.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct StandingsRow {
  std::string SchoolName;
  std::string Conference;
  std::string Division;
  int ConfWins = 0, ConfLosses = 0;
  int TotalWins = 0, TotalLosses = 0;
  int HomeWins = 0, HomeLosses = 0;
  int AwayWins = 0, AwayLosses = 0;
  double WinPercent = 0;  // a hundredth of the win fraction, as stored
  bool User = false;      // the user's school, shown in blue
};

struct StandingsTable {
  std::string Division;  // empty for a conference without divisions
  std::vector<StandingsRow> Rows;
};

struct Standings {
  std::string Title;
  std::vector<StandingsTable> Tables;
};

// The conferences the standings can show, by name.
std::vector<std::string> StandingsConferences(Store& store);

// "<conference> Standings". Empty tables when the conference has no schools.
Standings ConferenceStandings(Store& store, const std::string& conference);

// "National Standings": every Team row by win fraction, then wins.
Standings NationalStandings(Store& store);

// The win column: 100 * WinPercent rounded to three decimals, as "0.000".
std::string WinPctText(double winPercent);

}  // namespace courtmere
