#include "offseason/develop_player.h"

#include <algorithm>

#include "people/grading.h"
#include "people/player_writer.h"
#include "people/rating.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

// A + P / (25 - T) + D / Int((30 - D) x R + 5), for the skills trained by
// their own list.
int SkillGain(Rng& rng, int value, int potential, int points, int development) {
  // Design decision: a coaches' value so high that the divisor would reach
  // 0 or below counts as a divisor of 1; the game's coaches never come near.
  const int divisor = std::max(1, Int((30 - development) * rng.Rnd() + 5));
  return CInt(value + static_cast<double>(potential) / (25 - points) +
              static_cast<double>(development) / divisor);
}

// The coaches' term of Endurance and the awareness ratings.
double SlowCoachTerm(Rng& rng, int development) {
  return development / (Int(rng.Rnd() * 20 + 10) * 1.5);
}

void Cap(int& rating, int most) {
  rating = std::min(rating, most);
}

}  // namespace

void GrowAttributes(Rng& rng, Player& p, const TrainingRow& row, int d) {
  const int pot = p.Potential;
  struct Trained {
    int Player::*rating;
    TrainingSkill list;
  };
  static constexpr Trained kSkills[] = {
      {&Player::Handling, kTrainHandling},       {&Player::Passing, kTrainPassing},
      {&Player::PerrDefense, kTrainPerDefense},  {&Player::PostDefense, kTrainPostDefense},
      {&Player::ThreePoint, kTrainThrees},       {&Player::Jumpshot, kTrainShooting},
      {&Player::InScoring, kTrainInsideScoring}, {&Player::OffReb, kTrainRebounding},
      {&Player::DefReb, kTrainRebounding},       {&Player::Strength, kTrainStrength},
      {&Player::Quickness, kTrainQuickness},     {&Player::Jumping, kTrainJumping},
  };
  for (const Trained& s : kSkills) p.*s.rating = SkillGain(rng, p.*s.rating, pot, row[s.list], d);
  p.Endurance = CInt(p.Endurance + static_cast<double>(pot) / (25 - row[kTrainEndurance]) +
                     SlowCoachTerm(rng, d));
  const int school = row[kTrainSummerSchool];
  for (int Player::*aware : {&Player::OffAware, &Player::DefAware}) {
    p.*aware = CInt(p.*aware + static_cast<double>(pot) / (40 - school) + SlowCoachTerm(rng, d));
  }
  p.Intelligence += Int(school + rng.Rnd() * 5);
}

void CapAttributes(Player& p) {
  for (int Player::*rating : std::initializer_list<int Player::*>{
           &Player::Strength, &Player::Quickness, &Player::Jumping, &Player::Intelligence,
           &Player::OffAware, &Player::DefAware, &Player::Handling, &Player::Passing,
           &Player::DefReb, &Player::OffReb, &Player::PerrDefense, &Player::PostDefense,
           &Player::InScoring, &Player::Jumpshot, &Player::ThreePoint}) {
    Cap(p.*rating, 100);
  }
  Cap(p.Endurance, kMostEndurance);
}

void UpdatePlayerRatings(Session& session, Player& p) {
  ComputeDerivedRatings(p);
  ComputeOverall(p);
  // A junior-college prospect's Team is his region: no school's scout sees
  // him, and he keeps the grades he has.
  if (p.PlayerYear == "JCRecruit") return;
  if (!session.Db().ScalarInt("SELECT 1 FROM Scout WHERE Team = ?", p.Team)) return;
  GradePlayer(session, p);
}

void AdvanceYear(Player& p, int redshirt) {
  if (redshirt == 1) return;
  if (p.PlayerYear == "Freshman") {
    p.PlayerYear = "Sophomore";
  } else if (p.PlayerYear == "Sophomore") {
    p.PlayerYear = "Junior";
  } else if (p.PlayerYear == "Junior") {
    p.PlayerYear = "Senior";
    p.NBAFlag = 1;
  }
}

namespace {

void KeepPreGrades(Store& store, const Player& p) {
  store.Exec(
      "INSERT INTO Development (PlayerId, PreShootingGrade, PreAthleticGrade, PreScoreGrade, "
      "PreOutsideShootGrade, PreReboundGrade, PrePerrDefenseGrade, PrePostDefenseGrade, "
      "PrePassingGrade, PreHandlingGrade) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT "
      "(PlayerId) DO UPDATE SET PreShootingGrade = excluded.PreShootingGrade, PreAthleticGrade = "
      "excluded.PreAthleticGrade, PreScoreGrade = excluded.PreScoreGrade, PreOutsideShootGrade = "
      "excluded.PreOutsideShootGrade, PreReboundGrade = excluded.PreReboundGrade, "
      "PrePerrDefenseGrade = excluded.PrePerrDefenseGrade, PrePostDefenseGrade = "
      "excluded.PrePostDefenseGrade, PrePassingGrade = excluded.PrePassingGrade, "
      "PreHandlingGrade = excluded.PreHandlingGrade",
      p.Id, p.ShootingGrade, p.AthleticGrade, p.ScoreGrade, p.OutsideShootGrade, p.ReboundGrade,
      p.PerrDefenseGrade, p.PostDefenseGrade, p.PassingGrade, p.HandlingGrade);
}

}  // namespace

bool DevelopPlayer(Session& session, Player& p, int redshirt, int development, int background) {
  Store& store = session.Db();
  const int intelligence = p.Intelligence;
  if (background != 1) KeepPreGrades(store, p);
  // Design decision: background players keep no training rows; they train
  // by the computer's regimen for their position, so that they too grow
  // and move up a class, and their seniors leave the field.
  const std::optional<TrainingRow> row = background == 1
                                             ? ComputerTrainingRow(p.PlayerPosition, p.Intelligence)
                                             : LoadTrainingRow(store, p.Id);
  if (!row) return false;
  GrowAttributes(session.rng, p, *row, development);
  CapAttributes(p);
  UpdatePlayerRatings(session, p);
  AdvanceYear(p, redshirt);
  if (background != 1) {
    store.Exec("UPDATE Development SET StudyInc = ? WHERE PlayerId = ?",
               static_cast<double>(p.Intelligence - intelligence), p.Id);
    AddPlayerStats(store, p.Id);
  }
  return true;
}

std::array<int, 6> CoachesDevelopment(Store& store, const std::string& school) {
  std::array<int, 6> value{};
  Rows rows = store.Query(
      "SELECT total(PGDev), total(SGDev), total(SFDev), total(PFDev), total(CDev) FROM Coach "
      "WHERE Team = ?",
      school);
  if (rows.Next()) {
    for (int position = kPG; position <= kC; ++position) {
      value[position] = CInt(rows.Double(position - 1) / 10);
    }
  }
  return value;
}

void UpdatePlayerRow(Store& store, const Player& p) {
  static const std::string sql = [] {
    std::string s = "UPDATE Player SET Intelligence = ?, PlayerYear = ?, NBAFlag = ?";
    for (const char* grade :
         {"AthleticGrade", "ScoreGrade", "ShootingGrade", "OutsideShootGrade", "ReboundGrade",
          "PerrDefenseGrade", "PostDefenseGrade", "HandlingGrade", "PassingGrade", "PotentialGrade",
          "Overall", "ScoutOverall"}) {
      s += std::string(", ") + grade + " = ?";
    }
    for (const SkillColumn& skill : kSkillColumns) s += std::string(", ") + skill.name + " = ?";
    return s + " WHERE Id = ?";
  }();
  std::vector<Value> values{int64_t{p.Intelligence}, p.PlayerYear,    int64_t{p.NBAFlag},
                            p.AthleticGrade,         p.ScoreGrade,    p.ShootingGrade,
                            p.OutsideShootGrade,     p.ReboundGrade,  p.PerrDefenseGrade,
                            p.PostDefenseGrade,      p.HandlingGrade, p.PassingGrade,
                            p.PotentialGrade,        p.Overall,       p.ScoutOverall};
  for (const SkillColumn& skill : kSkillColumns) values.emplace_back(int64_t{p.*skill.field});
  values.emplace_back(int64_t{p.Id});
  store.ExecValues(sql, values);
}

}  // namespace courtmere
