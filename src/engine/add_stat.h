// Booking of one statistic to a man on the floor and to his team's line.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Books `stat` for the man in floor slot `slot` of the offence or defence.
// The man's line gains the statistic, and the team line (entry 13) too,
// except for "Allow Point", which only takes one from his plus-minus. A
// foul also counts as a team foul of his side. The game score is the shot
// rules' business, not this one's.
//
// A slot that holds no man still books to the team line. The play rules do
// book such statistics, so a team line can hold one more foul or turnover
// than its players' lines add up to, with no man left out of the box score:
//  - a foul whose fouler PickFouler could not find (no defender's value
//    above 0): the dribble's reach and drive fouls and the fouls of the
//    end-game cycle book "Foul" to slot 0 all the same, and it counts as a
//    team foul towards the bonus;
//  - whatever a blank record does while it stands in a slot that no fit man
//    was left to fill (a side out of bench and reserves after foul-outs and
//    injuries), a pass thrown out of bounds or a foul among it.
// The side's Unattributed line keeps these, so that the team line is always
// the sum of the players' lines and that one.
void AddStat(Game& game, Stat stat, SideWordRole role, int slot);

}  // namespace courtmere
