// A player's year of development: his training points, his Potential and
// his coaches' ability turn into new ratings, capped at 100 (Endurance at
// 2150); his derived ratings and Overall follow, his team's scout grades
// him anew and he moves up a class unless he redshirts. A player without a
// training row neither changes nor moves up.
#pragma once

#include <string>

#include "offseason/training_table.h"
#include "people/player.h"

namespace courtmere {

class Rng;
class Store;
struct Session;

// The coaches' value of a junior-college prospect and a background player.
inline constexpr int kJuniorCollegeDevelopment = 20;
inline constexpr int kMostEndurance = 2150;

// The new base ratings from one year of training with coaches' value D.
void GrowAttributes(Rng& rng, Player& player, const TrainingRow& row, int development);

// Cuts the trained ratings to 100 and Endurance to 2150.
void CapAttributes(Player& player);

// Derived ratings and Overall, then the grades and ScoutOverall from his
// team's own scout; a player whose team has no scout keeps his grades.
void UpdatePlayerRatings(Session& session, Player& player);

// The class after a year: Freshman > Sophomore > Junior > Senior; a new
// Senior is marked for the draft. A redshirt keeps his class.
void AdvanceYear(Player& player, int redshirt);

// The yearly routine for a Player row (background = 0) or a ScrubPlayer row
// (background = 1), edited in place; the caller writes it back. Returns
// false when the player had no regimen and so stayed as he was.
bool DevelopPlayer(Session& session, Player& player, int redshirt, int development, int background);

// The coaches' value of a school for each position (index 1 PG .. 5 C):
// the sum of its coaches' development columns over 10, rounded.
std::array<int, 6> CoachesDevelopment(Store& store, const std::string& school);

// Writes back what the yearly routine changes of a Player row.
void UpdatePlayerRow(Store& store, const Player& player);

}  // namespace courtmere
