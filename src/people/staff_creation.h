// Drawing assistant coaches, scouts and trainers for every Team row.
//
// For each school an index runs from `start` up to a limit; while it is below
// the number of posts the new man works for the school, above it he is a
// candidate "Looking at <school>". A new dynasty starts at 0 (staff and
// candidates), an offseason at the number of posts (candidates only).
#pragma once

#include <string>

#include "people/player_creation.h"

namespace courtmere {

struct Session;

// Three coaches per school, and candidates up to five.
inline constexpr int kCoachPosts = 3;
inline constexpr int kCoachLimit = 5;
// One scout and one trainer per school, and candidates up to three.
inline constexpr int kScoutPosts = 1;
inline constexpr int kScoutLimit = 3;
inline constexpr int kTrainerPosts = 1;
inline constexpr int kTrainerLimit = 3;

void CreateCoaches(Session& session, int start);
void CreateScouts(Session& session, int start);
void CreateTrainers(Session& session, int start);

// The staff class from the roll x (tested in the order of each table).
Quality CoachQuality(int x);
Quality ScoutQuality(int x);
Quality TrainerQuality(int x);

// The largest class roll M for a school of this prestige.
int CoachRollSize(double prestige);
int ScoutRollSize(double prestige);
int TrainerRollSize(double prestige);

struct CoachRatings {
  int Ambition = 0;
  std::string RecruitRegion;
  int RecruitAbility = 0;
  int PGDev = 0, SGDev = 0, SFDev = 0, PFDev = 0, CDev = 0;
  int OffCoach = 0, DefCoach = 0;
  int Salary = 0;
};
struct ScoutRatings {
  int Potential = 0, Scoring = 0, Defending = 0, Rebounding = 0, Handling = 0;
  int Espionage = 0;
  int Salary = 0;
};
struct TrainerRatings {
  int Ability = 0;
  int Salary = 0;
};

CoachRatings RateCoach(Rng& rng, Quality quality);
ScoutRatings RateScout(Rng& rng, Quality quality);
TrainerRatings RateTrainer(Rng& rng, Quality quality);

}  // namespace courtmere
