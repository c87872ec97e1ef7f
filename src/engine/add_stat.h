// Booking of one statistic to a man on the floor and to his team's line.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Books `stat` for the man in floor slot `slot` of the offence or defence.
// The man's line gains the statistic, and the team line (entry 13) too,
// except for "Allow Point", which only takes one from his plus-minus. A
// foul also counts as a team foul of his side. The game score is the shot
// rules' business, not this one's.
void AddStat(Game& game, Stat stat, SideWordRole role, int slot);

}  // namespace courtmere
