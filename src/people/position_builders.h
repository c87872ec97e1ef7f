// The five position builders: each counts itself, sets the position, the
// height and every rating of a new player from its table by quality class.
#pragma once

#include "people/player.h"
#include "people/player_creation.h"

namespace courtmere {

class Rng;

void BuildPG(Rng& rng, PositionCounters& counters, int heightInches, Player& player, Quality q);
void BuildSG(Rng& rng, PositionCounters& counters, int heightInches, Player& player, Quality q);
void BuildSF(Rng& rng, PositionCounters& counters, int heightInches, Player& player, Quality q);
void BuildPF(Rng& rng, PositionCounters& counters, int heightInches, Player& player, Quality q);
void BuildC(Rng& rng, PositionCounters& counters, int heightInches, Player& player, Quality q);

// The builder of a position (1 PG .. 5 C).
void BuildPosition(int position, Rng& rng, PositionCounters& counters, int heightInches,
                   Player& player, Quality q);

}  // namespace courtmere
