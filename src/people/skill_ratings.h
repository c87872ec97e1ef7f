// The basketball ratings of a player: what he carries onto the floor. The
// dynasty's player record and the game's copy of him share them.
#pragma once

#include <array>

namespace courtmere {

struct SkillRatings {
  int Jumpshot = 0;
  int InScoring = 0;
  int Range = 0;
  int ThreePoint = 0;
  int FreeThrow = 0;
  int PerrDefense = 0;
  int PostDefense = 0;
  int DefReb = 0;
  int OffReb = 0;
  int ShotBlock = 0;
  int Steal = 0;
  int OffRebounding = 0;
  int DefRebounding = 0;
  int Handling = 0;
  int OffAware = 0;
  int DefAware = 0;
  int Passing = 0;
  int Jumping = 0;
  int Quickness = 0;
  int Endurance = 0;
  int Strength = 0;
  int Reach = 0;
};

// Each rating with the name of its column in the player tables, in the
// order above.
struct SkillColumn {
  const char* name;
  int SkillRatings::*field;
};

inline constexpr std::array<SkillColumn, 22> kSkillColumns = {{
    {"Jumpshot", &SkillRatings::Jumpshot},
    {"InScoring", &SkillRatings::InScoring},
    {"Range", &SkillRatings::Range},
    {"ThreePoint", &SkillRatings::ThreePoint},
    {"FreeThrow", &SkillRatings::FreeThrow},
    {"PerrDefense", &SkillRatings::PerrDefense},
    {"PostDefense", &SkillRatings::PostDefense},
    {"DefReb", &SkillRatings::DefReb},
    {"OffReb", &SkillRatings::OffReb},
    {"ShotBlock", &SkillRatings::ShotBlock},
    {"Steal", &SkillRatings::Steal},
    {"OffRebounding", &SkillRatings::OffRebounding},
    {"DefRebounding", &SkillRatings::DefRebounding},
    {"Handling", &SkillRatings::Handling},
    {"OffAware", &SkillRatings::OffAware},
    {"DefAware", &SkillRatings::DefAware},
    {"Passing", &SkillRatings::Passing},
    {"Jumping", &SkillRatings::Jumping},
    {"Quickness", &SkillRatings::Quickness},
    {"Endurance", &SkillRatings::Endurance},
    {"Strength", &SkillRatings::Strength},
    {"Reach", &SkillRatings::Reach},
}};

}  // namespace courtmere
