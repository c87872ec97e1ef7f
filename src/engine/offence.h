// The offence: the inbound, bringing the ball up, dribble moves, how open
// the next man is, and passes. O is the ball handler, D the defender in the
// same floor slot.
#pragma once

#include "engine/game_model.h"
#include "platform/numeric.h"

namespace courtmere {

// Who takes the ball in and who gets it; may take seconds from the clock.
void InboundBall(Game& game);

// The whole defence against the whole offence as the ball crosses half
// court: sets TransitionEdge (below 0: lost in the back court) and the ball
// handler, and takes seconds.
void BringBallUp(Game& game);

// The pressure of D at `distance` feet, with the current Openness. Inline:
// the dribble loop asks for it on every step.
inline int DefenseRating(const Game& game, const GamePlayer& d, int distance) {
  const double o = game.Openness;
  double rating;
  if (distance < 7) {
    rating = d.Strength * 0.5 + d.PostDefense * 1.5 + d.Quickness * 0.5 - o / 4;
  } else if (distance <= 12) {
    rating = d.PostDefense * 0.75 + d.PerrDefense * 0.75 + d.Quickness - o / 3;
  } else if (distance <= 19) {
    rating = d.PerrDefense * 1.6 + d.Quickness - o / 2;
  } else {
    rating = d.Quickness * 0.9 + d.PerrDefense * 1.45 - o / 2;
  }
  return Int(rating);
}

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
