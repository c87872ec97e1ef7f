// Energy: drained on the floor, recovered on the bench, reset between periods.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Ticks the time since the last tick: minutes for the men on the floor and
// the team lines, energy drained by tempo and press, bench men recovering.
void ApplyElapsedTime(Game& game);

// The rest between periods: every roster player back to his endurance, less
// 150 if he has played at all.
void RestBetweenPeriods(Game& game);

// The tired rule: the energy below which a man counts as tired, by period
// and clock.
bool IsTired(const Game& game, int energy);

}  // namespace courtmere
