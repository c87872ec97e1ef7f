#include "cpu/lineup_builder.h"

#include <cstddef>
#include <initializer_list>

namespace courtmere {

namespace {

constexpr int kPG = 1, kSG = 2, kSF = 3, kPF = 4, kC = 5;
// A player of this reach may stand in at a position of a different size.
constexpr int kLongReach = 75;

bool TrySlots(LineupWork& w, int row, std::initializer_list<int> order) {
  for (int position : order) {
    if (position == 0 || w.starter[position] != 0) continue;
    w.starter[position] = w.rows[row].id;
    w.used[row] = 1;
    --w.openStarters;
    return true;
  }
  return false;
}

// The slots tried for a player whose own slot is taken.
bool TryNeighbours(LineupWork& w, int row) {
  const auto& b = w.best;
  switch (w.rows[row].position) {
    case kPG:
      return b[kSG] >= b[kSF] ? TrySlots(w, row, {kSF, kSG}) : TrySlots(w, row, {kSG, kSF});
    case kSG:
      return b[kSF] >= b[kPG] ? TrySlots(w, row, {kPG, kSF}) : TrySlots(w, row, {kSF, kPG});
    case kSF:
      return TrySlots(w, row, {kSG, kPF, kPG, kC});
    case kPF:
      return b[kC] >= b[kSF] ? TrySlots(w, row, {kSF, kC}) : TrySlots(w, row, {kC, kSF});
    default:
      return TrySlots(w, row, {kPF});
  }
}

// The position whose best player is below the best of the three others of
// SG, PF, PG and C; 0 when none is strictly weakest.
int StrictlyWeakest(const LineupWork& w) {
  const int candidates[] = {kSG, kPF, kPG, kC};
  for (int position : candidates) {
    bool weakest = true;
    for (int other : candidates) {
      if (other != position && !(w.best[position] < w.best[other])) weakest = false;
    }
    if (weakest) return position;
  }
  return 0;
}

bool TryWeakest(LineupWork& w, int row) {
  const int longOnly = w.rows[row].reach > kLongReach;
  switch (StrictlyWeakest(w)) {
    case kSG:
      return TrySlots(w, row, {kSG, kPG, longOnly ? kPF : 0, kC});
    case kPF:
      return TrySlots(w, row, {kPF, kSG, longOnly ? kPG : 0, kC});
    case kPG:
      return TrySlots(w, row, {kPG, kSG, longOnly ? kPF : 0, kC});
    case kC:
      return TrySlots(w, row, {longOnly ? kPF : 0, kC, kSG, longOnly ? kPG : 0});
    default:
      return false;
  }
}

bool IsStarter(const LineupWork& w, int id) {
  for (int position = kPG; position <= kC; ++position) {
    if (w.starter[position] == id) return true;
  }
  return false;
}

// After the walk, an open starter slot takes the best player not yet
// starting. He counts one spot like any starter.
void FillOpenStarters(LineupWork& w) {
  for (int position = kPG; position <= kC; ++position) {
    if (w.starter[position] != 0) continue;
    for (std::size_t row = 0; row < w.rows.size(); ++row) {
      if (IsStarter(w, w.rows[row].id)) continue;
      w.starter[position] = w.rows[row].id;
      ++w.used[row];
      --w.openStarters;
      break;
    }
  }
}

// Bench slot of a position in the second (benchRow 2) or third row.
int Slot(int benchRow, int position) {
  return (benchRow - 2) * 5 + position;
}

// Does the player stand at this position already, in any row?
bool StandsAt(const LineupWork& w, int id, int position) {
  return w.starter[position] == id || w.bench[Slot(2, position)] == id ||
         w.bench[Slot(3, position)] == id;
}

bool Fits(const LineupWork& w, int benchRow, int position, int id) {
  if (position < kPG || position > kC) return false;
  return w.bench[Slot(benchRow, position)] == 0 && w.starter[position] != id &&
         w.bench[Slot(2, position)] != id;
}

// Places the player of `row` at the first bench slot of the row that fits:
// his own position, then the ones near it.
bool PlaceOnBench(LineupWork& w, int benchRow, int row) {
  static constexpr int kOffsets[6][4] = {{0, 0, 0, 0},   {1, 2, 0, 0},  {-1, 1, 0, 0},
                                         {-1, -2, 1, 2}, {1, -1, 0, 0}, {-1, -2, 0, 0}};
  const int own = w.rows[row].position;
  const int id = w.rows[row].id;
  if (own < kPG || own > kC) return false;
  int targets[5] = {own, 0, 0, 0, 0};
  for (int i = 0; i < 4; ++i) targets[i + 1] = kOffsets[own][i] == 0 ? 0 : own + kOffsets[own][i];
  for (int t : targets) {
    if (!Fits(w, benchRow, t, id)) continue;
    w.bench[Slot(benchRow, t)] = id;
    ++w.used[row];
    --w.openBench;
    return true;
  }
  return false;
}

// The last fill-up: the empty slots in order go to the players who still
// hold fewer than two spots, best first, one each, to a position where he
// doesn't stand already.
void FillOpenBench(LineupWork& w) {
  for (std::size_t row = 0; row < w.rows.size() && w.openBench > 0; ++row) {
    if (w.used[row] == 2) continue;
    for (int slot = 1; slot <= 10; ++slot) {
      const int position = (slot - 1) % 5 + 1;
      if (w.bench[slot] != 0 || StandsAt(w, w.rows[row].id, position)) continue;
      w.bench[slot] = w.rows[row].id;
      ++w.used[row];
      --w.openBench;
      break;
    }
  }
}

}  // namespace

LineupWork::LineupWork(std::vector<LineupRow> sortedRows)
    : rows(std::move(sortedRows)), used(rows.size(), 0) {}

void PickStarters(LineupWork& w) {
  for (const LineupRow& r : w.rows) {
    if (r.position >= kPG && r.position <= kC && r.rating > w.best[r.position]) {
      w.best[r.position] = r.rating;
    }
  }
  for (std::size_t row = 0; row < w.rows.size() && w.openStarters > 0; ++row) {
    if (w.used[row] != 0) continue;
    const int own = w.rows[row].position;
    if (own >= kPG && own <= kC && TrySlots(w, static_cast<int>(row), {own})) continue;
    if (TryNeighbours(w, static_cast<int>(row))) continue;
    TryWeakest(w, static_cast<int>(row));
  }
  FillOpenStarters(w);
}

void PickBench(LineupWork& w) {
  // Second row: one attempt per player, best first.
  for (std::size_t row = 0; row < w.rows.size() && w.openBench > 0; ++row) {
    if (w.used[row] == 2) continue;
    PlaceOnBench(w, 2, static_cast<int>(row));
  }
  // Third row: the best player left may fill two of its spots.
  for (std::size_t row = 0; row < w.rows.size() && w.openBench > 0; ++row) {
    while (w.used[row] < 2 && w.openBench > 0 && PlaceOnBench(w, 3, static_cast<int>(row))) {
    }
  }
  if (w.openBench > 0) FillOpenBench(w);
}

}  // namespace courtmere
