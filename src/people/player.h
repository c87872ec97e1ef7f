// The player record: every basketball player of the dynasty, whether he plays
// for a first-division school, sits in the recruiting pool or plays for a
// background team, is one value of this type while he is made or changed.
//
// Ratings are whole numbers on a 0 to 100 scale, except `Endurance` (its own
// scale, about 1800 to 2150), `Range` (the distance of his shot in feet) and
// `Reach` (inches). The four derived ratings (`ShotBlock`, `Steal`,
// `OffRebounding`, `DefRebounding`), `Overall`, the grades and
// `ScoutOverall` follow from the others through RatePlayer.
#pragma once

#include <string>

#include "people/skill_ratings.h"

namespace courtmere {

// Positions: 1 PG, 2 SG, 3 SF, 4 PF, 5 C.
enum Position : int { kPG = 1, kSG = 2, kSF = 3, kPF = 4, kC = 5 };

inline constexpr const char* kGood = "Good";

struct Player : SkillRatings {
  int Id = 0;
  std::string Name;
  std::string AbbrName;
  std::string PlayerYear;
  std::string HomeTown;
  std::string HighSchool;
  std::string Team;
  std::string Height;
  int PlayerPosition = 0;
  int AvoidInjury = 0;
  std::string Health = kGood;
  int TimeInjured = 0;
  int Potential = 0;
  int Intelligence = 0;
  double GPA = 0;
  int NBAFlag = 0;
  int Homesick = 0;
  int PlayWinner = 0;
  std::string AthleticGrade;
  std::string ScoreGrade;
  std::string ShootingGrade;
  std::string OutsideShootGrade;
  std::string ReboundGrade;
  std::string PerrDefenseGrade;
  std::string PostDefenseGrade;
  std::string HandlingGrade;
  std::string PassingGrade;
  std::string PotentialGrade;
  double Overall = 0;
  double ScoutOverall = 0;
};

// "PG", "SG", "SF", "PF"; any other value prints "C".
const char* PositionName(int position);

// Whole feet, "-", the remaining inches: 73 gives "6-1".
std::string HeightText(int inches);

// The inches of a "feet-inches" text; 0 when it can't be read.
int HeightInches(const std::string& height);

}  // namespace courtmere
