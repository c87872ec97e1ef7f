// The tables that player creation draws from: the quality class by the
// team's prestige, the position and height by one roll, and who of a
// region's best underclassmen leaves early for the draft.
#pragma once

#include "people/player_creation.h"

namespace courtmere {

// The class of a player drawn at `prestige`, by the roll x from 1 to 100.
Quality PlayerClass(int prestige, int x);
// The class of a background player, by his team's prestige and the roll x.
Quality ScrubClass(int prestige, int x);

// Where a position roll y (1 to 100) lands: the builder's position and the
// height R(m, a) in inches, or exactly `a` when m is 0.
struct HeightBand {
  int position;
  double m;
  double a;
};
HeightBand PlayerHeightBand(int y);
HeightBand ScrubHeightBand(int y);

// Whether an underclassman above 75 Overall leaves early, by his draw r
// (1 to 100): always above 86; above 80 by his Potential; above 75 with
// Potential above 73, likelier with a GPA below 2.
bool LeavesEarly(double overall, int potential, double gpa, int r);
// The most early leavers held for one region.
inline constexpr int kMostEarlyLeavers = 51;

}  // namespace courtmere
