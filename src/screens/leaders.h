// The leader boards (frmLeaderBoard): the season's best players of the
// nation or of one conference in one statistic, from the season's figures in
// memory. Background teams have figures too, but only the first division's
// players stand on a board.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

struct Session;

enum class LeaderStat {
  kPoints,
  kRebounds,
  kAssists,
  kSteals,
  kBlocks,
  kFieldGoals,
  kThrees,
  kFreeThrows,
};

struct LeaderStatInfo {
  LeaderStat Stat;
  const char* Name;    // the board's title, "Points per Game"
  const char* Column;  // the heading of its figure, "PPG"
};

// The boards in the order the screen offers them.
const std::vector<LeaderStatInfo>& LeaderStats();

struct LeaderLine {
  int Rank = 0;  // players level on the value share a rank
  int PlayerId = 0;
  std::string Name;
  std::string School;
  std::string Position;
  int Games = 0;
  // Per game, or a fraction from 0 to 1 for a percentage, rounded as shown
  // (one decimal, of the percentage for a fraction): players who read the
  // same share a rank.
  double Value = 0;
  std::string ValueText;
};

// Design decision: a player qualifies once he has played at least half as
// many games as the busiest player of the board's schools, and for a
// percentage also with two field-goal attempts, one three-point attempt or
// one free throw a game. The boards stop at 25 rows (more when the 25th place
// is shared).
inline constexpr int kLeaderRows = 25;

// `conference` empty: the nation.
std::vector<LeaderLine> Leaders(Session& session, const std::string& conference, LeaderStat stat);

}  // namespace courtmere
