// A year of development: the formulas with the coaches' term held at 0,
// the bounds of that term, the caps, the class and the computer's regimen.
#include "offseason/develop_player.h"

#include <gtest/gtest.h>

#include "league/dynasty_fixture.h"
#include "offseason/train_players.h"
#include "people/player_writer.h"
#include "platform/rng.h"

namespace courtmere::testing {
namespace {

Player Even(int rating, int potential) {
  Player p;
  for (const SkillColumn& skill : kSkillColumns) p.*skill.field = rating;
  p.Endurance = 2000;
  p.Intelligence = rating;
  p.Potential = potential;
  p.PlayerPosition = kPG;
  return p;
}

TEST(GrowAttributes, PotentialShareGrowsWithTheTrainingPoints) {
  Rng rng(3);
  Player p = Even(50, 75);
  TrainingRow row = DefaultTrainingRow();
  row[kTrainShooting] = 10;      // 75 / 15 = 5
  row[kTrainThrees] = 5;         // 75 / 20 = 3.75, rounded to 4
  row[kTrainHandling] = 0;       // 75 / 25 = 3
  row[kTrainEndurance] = 10;     // + 5
  row[kTrainSummerSchool] = 10;  // awareness + 75 / 30 = 2.5, rounded to even 2
  GrowAttributes(rng, p, row, 0);
  EXPECT_EQ(p.Jumpshot, 55);
  EXPECT_EQ(p.ThreePoint, 54);
  EXPECT_EQ(p.Handling, 53);
  EXPECT_EQ(p.Endurance, 2005);
  EXPECT_EQ(p.OffAware, 52);
  EXPECT_EQ(p.DefAware, 52);
  EXPECT_GE(p.Intelligence, 60);  // + Int(10 + Rnd * 5)
  EXPECT_LE(p.Intelligence, 64);
  EXPECT_EQ(p.FreeThrow, 50);  // never trained
  EXPECT_EQ(p.Range, 50);
  EXPECT_EQ(p.OffReb, p.DefReb);  // one list trains both
}

TEST(GrowAttributes, CoachesTermLiesBetweenItsBounds) {
  Rng rng(5);
  const int d = 20;
  for (int i = 0; i < 400; ++i) {
    Player p = Even(0, 0);
    GrowAttributes(rng, p, DefaultTrainingRow(), d);
    // D / Int((30 - D) x R + 5) lies in [20 / 14, 20 / 5].
    EXPECT_GE(p.Passing, 1);
    EXPECT_LE(p.Passing, 4);
  }
}

TEST(CapAttributes, TrainedRatingsStopAt100AndEnduranceAt2150) {
  Rng rng(1);
  Player p = Even(100, 99);
  p.Endurance = 2148;
  p.FreeThrow = 100;
  GrowAttributes(rng, p, DefaultTrainingRow(), 10);
  CapAttributes(p);
  EXPECT_EQ(p.Jumpshot, 100);
  EXPECT_EQ(p.Intelligence, 100);
  EXPECT_EQ(p.Endurance, kMostEndurance);
  EXPECT_EQ(p.Reach, 100);  // not a trained rating: never capped here
}

TEST(AdvanceYear, ClassesMoveUpAndANewSeniorIsMarked) {
  Player p;
  for (auto [from, to] : {std::pair{"Freshman", "Sophomore"}, std::pair{"Sophomore", "Junior"},
                          std::pair{"Senior", "Senior"}, std::pair{"JCRecruit", "JCRecruit"}}) {
    p.PlayerYear = from;
    p.NBAFlag = 0;
    AdvanceYear(p, 0);
    EXPECT_EQ(p.PlayerYear, to);
    EXPECT_EQ(p.NBAFlag, 0);
  }
  p.PlayerYear = "Junior";
  AdvanceYear(p, 0);
  EXPECT_EQ(p.PlayerYear, "Senior");
  EXPECT_EQ(p.NBAFlag, 1);
  Player redshirt;
  redshirt.PlayerYear = "Junior";
  AdvanceYear(redshirt, 1);
  EXPECT_EQ(redshirt.PlayerYear, "Junior");
  EXPECT_EQ(redshirt.NBAFlag, 0);
}

TEST(ComputerTraining, EveryRowSpends65AndStudyFollowsIntelligence) {
  for (int position = kPG; position <= kC; ++position) {
    for (int intelligence : {10, 45, 65, 95}) {
      const TrainingRow row = ComputerTrainingRow(position, intelligence);
      EXPECT_EQ(TrainingPointsUsed(row), kTrainingPoints);
      EXPECT_EQ(row[kTrainEndurance], 10 - row[kTrainSummerSchool]);
    }
  }
  const std::pair<int, int> bands[] = {{39, 9}, {40, 8}, {50, 7}, {60, 5}, {79, 4}, {80, 2}};
  for (auto [intelligence, school] : bands) {
    EXPECT_EQ(ComputerTrainingRow(kC, intelligence)[kTrainSummerSchool], school) << intelligence;
  }
  EXPECT_EQ(ComputerTrainingRow(kSG, 50)[kTrainThrees], 10);
  EXPECT_EQ(ComputerTrainingRow(kC, 50)[kTrainPostDefense], 10);
}

TEST(DevelopPlayer, APlayerWithoutARegimenStaysAsHeIs) {
  BlankProgram program;
  Store& store = program.store();
  Player p = Even(50, 80);
  p.Id = 7;
  p.Team = "Nowhere";
  p.PlayerYear = "Junior";
  AddPlayer(store, p);
  Player before = p;
  EXPECT_FALSE(DevelopPlayer(program.session(), p, 0, 10, 0));
  EXPECT_EQ(p.Jumpshot, before.Jumpshot);
  EXPECT_EQ(p.PlayerYear, "Junior");
  EXPECT_EQ(p.NBAFlag, 0);

  SaveTrainingRow(store, 7, DefaultTrainingRow());
  EXPECT_TRUE(DevelopPlayer(program.session(), p, 0, 10, 0));
  UpdatePlayerRow(store, p);
  Player stored;
  ASSERT_TRUE(LoadPlayer(store, 7, stored));
  EXPECT_GT(stored.Jumpshot, 50);
  EXPECT_EQ(stored.PlayerYear, "Senior");
  EXPECT_EQ(stored.NBAFlag, 1);
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM PlayerStats WHERE Id = 7"), 1);
  EXPECT_EQ(store.ScalarDouble("SELECT StudyInc FROM Development WHERE PlayerId = 7"),
            stored.Intelligence - 50);
}

TEST(PlayerIdCounter, StartsAgainOnlyAbove25000) {
  EXPECT_EQ(WrappedPlayerId(25000), 25000);
  EXPECT_EQ(WrappedPlayerId(25001), 1);
  EXPECT_EQ(WrappedPlayerId(12), 12);
}

}  // namespace
}  // namespace courtmere::testing
