// The offence: the inbound, bringing the ball up, dribble moves, how open
// the next man is, and passes. O is the ball handler, D the defender in the
// same floor slot.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Who takes the ball in and who gets it; may take seconds from the clock.
void InboundBall(Game& game);

// The whole defence against the whole offence as the ball crosses half
// court: sets TransitionEdge (below 0: lost in the back court) and the ball
// handler, and takes seconds.
void BringBallUp(Game& game);

// The pressure of D at `distance` feet, with the current Openness.
int DefenseRating(const Game& game, const GamePlayer& d, int distance);

// One dribble drive of O against D from game.Distance. The result: above 0
// the new distance, 0 fouled, -1 lost dead, -2 stolen (also left in
// game.Distance).
int DribbleMove(Game& game, const GamePlayer& o, const GamePlayer& d);

// Sets Openness for the next pass.
void RateOpenness(Game& game, const GamePlayer& o, const GamePlayer& d);

// Throws a pass from `distance`: the receiver's distance above 0, 0 thrown
// away, below 0 stolen. On arrival sets BallPos and takes seconds.
int PassBall(Game& game, int distance);

// The distance at which the receiver takes the ball, or 0 / -1.
int RollPass(Game& game, int distance);

// The receiving slot for a pass caught at `r` feet and a roll p of 1..100.
int PassReceiver(int r, int p);

// The defender who steals the ball.
int PickStealer(Game& game);

}  // namespace courtmere
