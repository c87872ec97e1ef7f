// Injuries: only the ball handler can get hurt, and only at a stop of play.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Rolls for an injury of the ball handler; on one, hurts him, posts the
// line and clears his team's depth chart (the user's excepted) so that it is
// rebuilt before the team's next game.
void InjuryCheck(Game& game);

// Gives the man in floor slot `slot` of `side` an injury from the injury
// list, shortened or lengthened by his trainer, in memory and in the store.
// False when the list has no row for the draw.
bool InjurePlayer(Game& game, Side side, int slot, bool background);

// The weeks out for an injury of `weeksOut` weeks, by the roll r of the
// trainer: r of 25 or less adds two weeks, up to 50 one, from 71 on takes
// two, else one; never below 1.
int InjuryWeeks(int weeksOut, int r);

}  // namespace courtmere
