// The box-score screen's data (frmBoxScore): which file a played game's box
// score is in, the two schools and scores at its head, and the player behind
// a name in its grids.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace courtmere {

class Store;
struct Session;

// The code in "Error displaying the player. The code is <code>" when no
// player of the school has the name shown (design decision: the program's
// own number for "no such player").
inline constexpr int kNoSuchPlayerCode = 1;

// The box file of a game by its number, from NonConfSchedule or else the
// conference table given. Nothing when the path is empty or no such file
// exists: the click then does nothing.
std::optional<std::filesystem::path> BoxScoreFile(Store& store, int gameNo,
                                                  const std::string& conferenceTable);

// The head of a box file: "<school> Score: <n>" for the home side, then the
// away side.
struct BoxScoreHeader {
  std::string HomeTeam;
  std::string AwayTeam;
  std::string HomeScore;
  std::string AwayScore;
};
BoxScoreHeader ReadBoxScoreHeader(const std::filesystem::path& file);

// One line of a side's table: a man's, or the team's totals.
struct BoxLine {
  std::string Name;      // the man's AbbrName, or the school for the totals
  std::string Position;  // "PG" to "C"; empty for the totals
  int Minutes = 0;
  int ShotsMade = 0;
  int Shots = 0;
  int ThreesMade = 0;
  int Threes = 0;
  int FTMade = 0;
  int FreeThrows = 0;
  int Assists = 0;
  int Turnovers = 0;
  int OffRebounds = 0;
  int DefRebounds = 0;
  int Blocks = 0;
  int Steals = 0;
  int Fouls = 0;
  int PlusMinus = 0;
  int Points = 0;
  bool Starter = false;
  // Did not play: no minute on the floor.
  bool Dnp() const { return Minutes == 0; }
};

// A side of the box score: its men, the starters first in the order of their
// places (PG1 to C1), then the others by minutes played with those who did
// not play last, and the team's totals.
struct BoxTable {
  std::string School;
  std::string Score;
  std::vector<BoxLine> Players;
  BoxLine Totals;
};

// Both sides of a box file, home first. The starters are the first five of
// the school's depth chart as it stands (Team or ScrubTeam): the file keeps
// no mark of them. Empty tables when the file cannot be read.
std::array<BoxTable, 2> ReadBoxTables(Store& store, const std::filesystem::path& file);

// The player's share of made attempts as a percentage with one decimal
// ("45.5"); empty without an attempt.
std::string ShootingPercent(int made, int attempts);

// The Id of the player shown as `abbrName` in the school's grid. An empty
// name (an empty row) gives nothing silently; a name no player of the school
// has shows "Error displaying the player. The code is 1" and gives nothing.
std::optional<int> BoxScorePlayer(Session& session, const std::string& school,
                                  const std::string& abbrName);

}  // namespace courtmere
