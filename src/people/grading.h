// Scouting: the grades and ScoutOverall a school's scout gives a player.
//
// The scout never sees a true rating: each estimate is off by at least 5
// points, up or down, and by at most the spread of his skill.
#pragma once

#include <optional>
#include <string>

#include "people/player.h"

namespace courtmere {

class Rng;
class Store;
struct Session;

// The skills of a Scout row that decide his errors.
struct ScoutSkills {
  int Potential = 0;
  int Scoring = 0;
  int Defending = 0;
  int Rebounding = 0;
  int Handling = 0;
};

// Letters of the normal scale (a grade is the one-letter text): "A" above 74, "B" above 62, "C"
// above 49, "D" above 40, else "F".
char GradeLetter(double x);
// Letters of the potential scale: "A" above 75, "B" above 60, "C" above 50,
// "D" above 40, else "F".
char PotentialGradeLetter(double x);

// The size of a scout's error for his skill in the column that applies.
int ScoutSpread(int skill);

// One estimate: the value moved up by Int(S * Rnd + 5) or down by
// Int(S * Rnd + 5), both drawn every time, the direction by a third draw.
double ScoutEstimate(Rng& rng, double value, int spread);

// The scout who judges a player of this team: the team's own, or the user's
// school's for a recruit (whose team is a region name).
std::optional<ScoutSkills> FindScout(Store& store, const std::string& team);

// Sets the ten grades and ScoutOverall through the scout of his team; without
// a scout they stay as they are.
void GradePlayer(Session& session, Player& player);

// The same with a given scout.
void GradePlayerWith(Rng& rng, const ScoutSkills& scout, Player& player);

}  // namespace courtmere
