// Roll(n) = Int(Rnd * n + 1), inlined for the possession loop, which rolls
// thousands of times a game. The same draw as Rng::Roll.
#pragma once

#include "platform/numeric.h"
#include "platform/rng.h"

namespace courtmere {

inline int RollDie(Rng& rng, int n) {
  return rng.IntRnd(n, 1);
}

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
