// Staff creation: the posts and candidates of each school, classes by
// prestige, and the rating tables.
#include <gtest/gtest.h>

#include "people/league_fixture.h"
#include "people/staff_creation.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

int64_t Count(Store& store, const std::string& sql, const std::string& arg) {
  return store.ScalarInt(sql, arg).value_or(-1);
}

TEST(StaffCreation, ANewDynastyGivesEachSchoolItsStaffAndTwoCandidatesOfEach) {
  testing::LeagueFixture league;
  for (const char* school : {"St. John's", "Duke", "Tulsa"}) league.AddTeam(school, "East", 0);
  CreateScouts(league.session(), 0);
  CreateCoaches(league.session(), 0);
  CreateTrainers(league.session(), 0);
  Store& s = league.store();
  for (const char* school : {"St. John's", "Duke", "Tulsa"}) {
    for (auto [table, staff] :
         {std::pair("Coach", 3), std::pair("Scout", 1), std::pair("Trainer", 1)}) {
      const std::string sql = std::string("SELECT count(*) FROM ") + table + " WHERE Team = ?";
      EXPECT_EQ(Count(s, sql, school), staff) << table;
      EXPECT_EQ(Count(s, sql, std::string("Looking at ") + school), 2) << table;
    }
  }
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Coach WHERE Name NOT LIKE '_% _%' OR "
                        "OffPoints <> 0 OR RecPoints <> 0 OR RecruitRegion NOT IN "
                        "('West', 'Midwest', 'East', 'South')"),
            0);
  EXPECT_EQ(s.ScalarInt("SELECT Max(Id) FROM Coach"), 15);

  CreateScouts(league.session(), 1);  // an offseason: candidates only
  EXPECT_EQ(Count(s, "SELECT count(*) FROM Scout WHERE Team = ?", "Duke"), 1);
  EXPECT_EQ(Count(s, "SELECT count(*) FROM Scout WHERE Team = ?", "Looking at Duke"), 4);
  EXPECT_EQ(s.ScalarInt("SELECT Min(Id) FROM Scout WHERE Id > 9"), 10);
  EXPECT_EQ(s.RowCount("Scout"), 15);
}

// At a new dynasty no school has a Prestige yet, so every one rolls its
// staff's class out of 100 and can draw "Poor" men; a school of prestige 80
// never does. Only a "Poor" man has a coach's Salary below 15, a scout's
// Potential or a trainer's Ability below 45.
TEST(StaffCreation, ASchoolWithoutPrestigeRollsOutOfAHundred) {
  testing::LeagueFixture league(4);
  for (int i = 0; i < 30; ++i) {
    league.store().Append("Team", {{"SchoolName", "New " + std::to_string(i)}});
    league.AddTeam("Old " + std::to_string(i), "East", 80);
  }
  CreateCoaches(league.session(), 0);
  CreateScouts(league.session(), 0);
  CreateTrainers(league.session(), 0);
  Store& s = league.store();
  const std::string poorCoaches = "SELECT count(*) FROM Coach WHERE Salary < 15 AND Team LIKE ?";
  const std::string poorScouts = "SELECT count(*) FROM Scout WHERE Potential < 45 AND Team LIKE ?";
  const std::string poorTrainers =
      "SELECT count(*) FROM Trainer WHERE Ability < 45 AND Team LIKE ?";
  for (const std::string& sql : {poorCoaches, poorScouts, poorTrainers}) {
    EXPECT_GT(Count(s, sql, "%New %"), 0) << sql;
    EXPECT_EQ(Count(s, sql, "%Old %"), 0) << sql;
  }
}

TEST(StaffCreation, ClassRollShrinksWithPrestige) {
  EXPECT_EQ(CoachRollSize(76), 30);
  EXPECT_EQ(CoachRollSize(75), 40);
  EXPECT_EQ(CoachRollSize(65.5), 40);
  EXPECT_EQ(CoachRollSize(51), 50);
  EXPECT_EQ(CoachRollSize(50), 100);
  EXPECT_EQ(ScoutRollSize(51), 60);
  EXPECT_EQ(TrainerRollSize(76), 40);
  EXPECT_EQ(TrainerRollSize(66), 50);
  // Prestige 76: a coach's roll is at most 31, so never "Poor" or "Average".
  for (int x = 1; x <= 31; ++x) {
    EXPECT_EQ(CoachQuality(x), x < 20 ? Quality::kExc : Quality::kGood) << x;
  }
  EXPECT_EQ(CoachQuality(38), Quality::kAverage);
  EXPECT_EQ(CoachQuality(66), Quality::kPoor);
  // Prestige 51: a scout's roll is at most 61, never "Poor".
  for (int x = 1; x <= 61; ++x) EXPECT_NE(ScoutQuality(x), Quality::kPoor) << x;
  EXPECT_EQ(ScoutQuality(17), Quality::kExc);
  EXPECT_EQ(ScoutQuality(18), Quality::kGood);
  EXPECT_EQ(ScoutQuality(38), Quality::kAverage);
  EXPECT_EQ(TrainerQuality(15), Quality::kExc);
  EXPECT_EQ(TrainerQuality(16), Quality::kGood);
  EXPECT_EQ(TrainerQuality(36), Quality::kAverage);
  EXPECT_EQ(TrainerQuality(66), Quality::kPoor);
}

TEST(StaffCreation, RatingsStayInTheirClassesRanges) {
  Rng rng(3);
  int topExc = 0;
  for (int i = 0; i < 3000; ++i) {
    const CoachRatings exc = RateCoach(rng, Quality::kExc);
    EXPECT_GE(exc.RecruitAbility, 70);
    EXPECT_LE(exc.RecruitAbility, 100);
    EXPECT_GE(exc.Ambition, 30);
    EXPECT_GE(exc.Salary, 25);
    EXPECT_LE(exc.Salary, 35);
    topExc = std::max({topExc, exc.OffCoach, exc.RecruitAbility, exc.PGDev});
    const CoachRatings avg = RateCoach(rng, Quality::kAverage);
    for (int v : {avg.RecruitAbility, avg.PGDev, avg.CDev, avg.OffCoach, avg.DefCoach}) {
      EXPECT_GE(v, 50);
      EXPECT_LE(v, 85);
    }
    const ScoutRatings poor = RateScout(rng, Quality::kPoor);
    EXPECT_GE(poor.Potential, 30);
    EXPECT_LE(poor.Potential, 50);
    for (int v : {poor.Scoring, poor.Defending, poor.Rebounding, poor.Handling, poor.Espionage}) {
      EXPECT_GE(v, 25);
      EXPECT_LE(v, 50);
    }
    const TrainerRatings good = RateTrainer(rng, Quality::kGood);
    EXPECT_GE(good.Ability, 60);
    EXPECT_LE(good.Ability, 90);
  }
  EXPECT_EQ(topExc, 100);
}

}  // namespace
}  // namespace courtmere
