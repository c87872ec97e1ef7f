// Shooting and rebounding: whether the ball handler shoots, whether the
// shot falls, who fouls or blocks it, free throws and the rebound.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// 0: no shot. Otherwise the quality of the shot just taken (its ShotValue):
// 551 or more falls, 700 counts in spite of a foul, 5 is a block. May move
// the shooter back to 20 feet for a needed three.
int ShootDecision(Game& game, const GamePlayer& o, const GamePlayer& d);

// The shot itself, with R from the decision: its value, and Blocker and
// Fouler when that happens.
int TakeShot(Game& game, const GamePlayer& o, const GamePlayer& d, int r);

// Scores, statistics, lines and what follows the shot: free throws, the
// next PossState, or a rebound.
void ResolveShot(Game& game, int shotValue);

// One free throw by the man in slot BallPos: 1 made, 0 missed.
int FreeThrow(Game& game);

// The defender of `side` who commits a foul at `distance`, or 0 for nobody.
int PickFouler(Game& game, int distance, Side side);

// The defender who blocks the shot, or 0.
int PickBlocker(Game& game);

// The rebound of a shot from `distance`: the landing distance. Sets BallPos
// to the rebounder and PossState to 1 when the defence gets it.
int Rebound(Game& game, int distance, bool blocked);

}  // namespace courtmere
