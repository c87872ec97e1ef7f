// Picking among the rolls of the five men on the floor.
#pragma once

namespace courtmere {

// The slot of the first highest roll above 0 among the rolls offered, slot
// by slot; slot 0 when none is above 0. Kept without branching: which roll
// is higher is a coin toss to the processor.
struct HighestRoll {
  int value = 0;
  int slot = 0;
  void Offer(int rollSlot, int roll) {
    const bool higher = roll > value;
    value = higher ? roll : value;
    slot = higher ? rollSlot : slot;
  }
};

}  // namespace courtmere
