// Roll(n) = Int(Rnd * n + 1), inlined for the possession loop, which rolls
// thousands of times a game. The same draw as Rng::Roll.
#pragma once

#include "platform/numeric.h"
#include "platform/rng.h"

namespace courtmere {

inline int RollDie(Rng& rng, int n) {
  return rng.IntRnd(n, 1);
}

}  // namespace courtmere
