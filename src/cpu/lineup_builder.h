// The working arrays of one depth chart and the two passes that fill them.
//
// Rows come best rating first. PickStarters places each player at his own
// position, a neighbour or the team's weakest position; PickBench fills the
// two bench rows so that nobody stands in more than two spots, twice at one
// position or at two starter slots.
#pragma once

#include <array>
#include <vector>

namespace courtmere {

struct LineupRow {
  int id = 0;
  int position = 0;  // 1 PG .. 5 C
  double rating = 0;
  int reach = 0;
};

struct LineupWork {
  std::vector<LineupRow> rows;
  std::array<int, 6> starter{};  // by position 1..5; 0 while open
  std::array<int, 11> bench{};   // 1..5 second row, 6..10 third row by position
  std::vector<int> used;         // spots held by each row: 0, 1 or 2
  std::array<double, 6> best{};  // best rating at each position
  int openStarters = 5;
  int openBench = 10;

  explicit LineupWork(std::vector<LineupRow> sortedRows);
};

void PickStarters(LineupWork& work);
void PickBench(LineupWork& work);

}  // namespace courtmere
