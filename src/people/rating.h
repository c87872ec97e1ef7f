// The ratings that follow from a player's base ratings, and the two ways his
// base ratings change: a year of development and the cap at 100.
#pragma once

#include "people/player.h"

namespace courtmere {

class Rng;
struct Session;

// ShotBlock, Steal, OffRebounding and DefRebounding from the base ratings,
// each rounded half to even and not capped.
void ComputeDerivedRatings(Player& player);

// The position's weighted mean of his ratings, unrounded. A player whose
// position is outside 1 to 5 keeps the Overall he has.
void ComputeOverall(Player& player);

// The athletic value that his athletic grade is drawn from; 0 for a position
// outside 1 to 5.
double AthleticValue(const Player& player);

// Derived ratings, Overall, then the grades and ScoutOverall through his
// team's scout.
void RatePlayer(Session& session, Player& player);

// Sets to 100 each capped rating above it. Endurance, Quickness, Jumping,
// Range, Reach and Potential are never capped here.
void CapRatings(Player& player);

// One year of gains at his position. With rerate = 1 the ratings are then
// capped and rated; a batch that develops several years passes 0 and does
// both once at the end.
void DevelopOneYear(Session& session, Player& player, int rerate);

// The gains alone, drawn from `rng`.
void DevelopOneYear(Rng& rng, Player& player);

}  // namespace courtmere
