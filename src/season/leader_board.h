// The sorted list behind the leader board: players' season figures ranked on
// one value, best first.
//
// Each row carries the value it is sorted on, the player, his natural
// position and his per-game figures, which is all the award picks and the
// board's screen need. The list holds at most 1500 rows.
#pragma once

#include <vector>

namespace courtmere {

struct PlayerSeasonLine;

struct LeaderRow {
  double Value = 0;
  int Id = 0;
  int PlayerPosition = 0;
  double PPG = 0;
  double RPG = 0;
  double APG = 0;
  double SPG = 0;
  double BPG = 0;
  double TOPG = 0;
};

inline constexpr int kMaxLeaderRows = 1500;

// A row for a player's season line, sorted on `value`.
LeaderRow MakeLeaderRow(const PlayerSeasonLine& line, double value);

// Sorts the rows best first and keeps the first 1500. Design decision: rows
// with equal values keep the order they were given in (the store's order of
// teams, then of slots), so the earlier team's man stands higher.
void SortLeaderBoard(std::vector<LeaderRow>& rows);

}  // namespace courtmere
