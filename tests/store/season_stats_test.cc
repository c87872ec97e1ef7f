// The season's figures between memory and the store: what a save writes and
// a load reads back.
#include "store/season_stats.h"

#include <gtest/gtest.h>

#include "small_dynasty.h"

namespace courtmere {
namespace {

using testing::SmallDynasty;

class SeasonStatsTest : public ::testing::Test {
 protected:
  SeasonStatsTest() {
    store().Append("ScrubTeam", {{"SchoolName", "Siena"}, {"Conference", "MAAC"}});
    store().Append("ScrubPlayer",
                   {{"Id", int64_t{9001}}, {"Team", "Siena"}, {"PlayerPosition", int64_t{2}}});
    LoadSeasonStats(session());
  }
  Session& session() { return dynasty_.session(); }
  Store& store() { return dynasty_.store(); }
  PlayerStatsStore& stats() { return session().seasonStats; }

  SmallDynasty dynasty_;
};

TEST_F(SeasonStatsTest, TeamsComeInStoreOrderAndPlayersByIdWithTheBackgroundLast) {
  EXPECT_EQ(stats().Team(1).SchoolName, SmallDynasty::kHuman);
  EXPECT_EQ(stats().Team(1).Conference, "Big East");
  EXPECT_EQ(stats().Team(2).SchoolName, "Duke");
  EXPECT_EQ(stats().Team(3).SchoolName, "Siena");
  EXPECT_EQ(stats().Team(3).Players[1].Id, 9001);
  EXPECT_LT(stats().Team(1).Players[1].Id, stats().Team(1).Players[2].Id);
  EXPECT_EQ(stats().Team(1).Players[13].Id, 0) << "twelve players, twelve slots";
}

TEST_F(SeasonStatsTest, ASavedSeasonComesBackWhole) {
  PlayerSeasonLine& line = stats().Team(2).Players[4];
  line.Games = 7;
  line.Points = 101;
  line.OffRebounds = 12;
  line.PlusMinus = -9;
  line.PPG = 101.0 / 7;
  line.FGPercent = 0.4375;
  line.Score = 88.5;
  line.WeekPoints = 14.5;  // a Saturday's mean: the table keeps whole numbers
  line.WeekAssists = 3;
  line.AwardScore = 61.25;
  PlayerSeasonLine& scrub = stats().Team(3).Players[1];
  scrub.Games = 7;
  scrub.PPG = 12.5;
  scrub.MPG = 28;
  const PlayerSeasonLine saved = line;

  SaveSeasonStats(session());
  stats().Clear();
  LoadSeasonStats(session());
  const PlayerSeasonLine& back = stats().Team(2).Players[4];
  EXPECT_EQ(back.Id, saved.Id);
  EXPECT_EQ(back.Games, 7);
  EXPECT_EQ(back.Points, 101);
  EXPECT_EQ(back.OffRebounds, 12);
  EXPECT_EQ(back.PlusMinus, -9);
  EXPECT_DOUBLE_EQ(back.PPG, 101.0 / 7);
  EXPECT_DOUBLE_EQ(back.FGPercent, 0.4375);
  EXPECT_DOUBLE_EQ(back.Score, 88.5);
  EXPECT_DOUBLE_EQ(back.WeekPoints, 14) << "half to even";
  EXPECT_DOUBLE_EQ(back.WeekAssists, 3);
  EXPECT_DOUBLE_EQ(back.AwardScore, 61.25);
  EXPECT_EQ(back.PlayerPosition,
            store().ScalarInt("SELECT PlayerPosition FROM Player WHERE Id = ?", back.Id));
  EXPECT_EQ(stats().Team(3).Players[1].Games, 7);
  EXPECT_DOUBLE_EQ(stats().Team(3).Players[1].PPG, 12.5);
  EXPECT_DOUBLE_EQ(*store().ScalarDouble("SELECT MPG FROM ScrubPlayer WHERE Id = 9001"), 28);
}

TEST_F(SeasonStatsTest, AReleasedPlayersFiguresMoveToNoOneElseAndUnloadedOnesSaveNothing) {
  const int gone = stats().Team(1).Players[1].Id;
  const int next = stats().Team(1).Players[2].Id;
  stats().Team(1).Players[1].Points = 300;
  stats().Team(1).Players[2].Points = 5;
  store().Exec("DELETE FROM Player WHERE Id = ?", gone);
  SaveSeasonStats(session());
  EXPECT_EQ(store().ScalarInt("SELECT Points FROM PlayerStats WHERE Id = ?", next), 5);
  EXPECT_FALSE(store().ScalarInt("SELECT Points FROM PlayerStats WHERE Id = ?", gone));
  // Figures never loaded leave the table alone.
  store().Exec("UPDATE PlayerStats SET Points = 17");
  stats().Clear();
  SaveSeasonStats(session());
  EXPECT_EQ(store().ScalarInt("SELECT min(Points) FROM PlayerStats"), 17);
}

}  // namespace
}  // namespace courtmere
