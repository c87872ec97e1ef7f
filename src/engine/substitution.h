// Substitution: the floor check at every stop of play, the rotation of tired
// or foul-troubled men, and the search of the depth chart for a replacement.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// The four limits the floor check applies to one man.
struct FloorCheckLine {
  int MinEnergy;
  int MaxFouls;
  int ReturnMargin;
  int RestLeaders;
};

// The limits for a man of `side` with `pattern`, at the game's period and clock.
FloorCheckLine FloorCheck(const Game& game, SubPattern pattern, Side side);

// The floor check: injuries, men who must leave, rotation, filling of
// empty slots, and on a live screen the user's substitution window.
void CheckSubs(Game& game);

// Rotates the man in `slot` by the limits of `line`.
void RotatePlayer(Game& game, Side side, int slot, const FloorCheckLine& line);

// Sends in the first fit man from the depth chart for `slot`, or the next
// man of the reserve queue when nobody is fit.
void SubstitutePlayer(Game& game, int slot, Side side, int minEnergy);

// The Id at depth-chart `entry` if that man may come in now, else 0.
int DepthCandidate(const Game& game, int entry, Side side, int minEnergy);

// The chart entries SubstitutePlayer tries for a slot, in order.
const std::array<int, 7>& SubstitutionOrder(int slot);

}  // namespace courtmere
