// The estimated season lines of background players.
#include <gtest/gtest.h>

#include "cpu/computer_roster.h"
#include "people/league_fixture.h"
#include "people/player_creation.h"

namespace courtmere {
namespace {

TEST(UpdateScrubStats, EachBackgroundTeamTakesAnEntryAndItsPlayersLines) {
  testing::LeagueFixture league(41);
  league.AddScrubTeam("Little U", 45);
  league.AddScrubTeam("Tiny U", 30);
  CreateScrubTeamRoster(league.session(), "Little U", 45);
  CreateScrubTeamRoster(league.session(), "Tiny U", 30);
  auto stats = std::make_unique<PlayerStatsStore>();
  stats->Team(1).SchoolName = "Duke";  // a first-division team before them

  UpdateScrubStats(league.session(), *stats, 1);
  ASSERT_EQ(stats->Team(2).SchoolName, "Little U");
  ASSERT_EQ(stats->Team(3).SchoolName, "Tiny U");
  int lastId = 0;
  for (int slot = 1; slot <= 13; ++slot) {
    const PlayerSeasonLine& line = stats->Team(2).Players[slot];
    EXPECT_GT(line.Id, lastId);  // slots follow the ids
    lastId = line.Id;
    EXPECT_EQ(league.store().ScalarText("SELECT Team FROM ScrubPlayer WHERE Id = ?", line.Id),
              "Little U");
    EXPECT_EQ(line.Games, 1);
    EXPECT_GE(line.PPG, 5);
    EXPECT_GE(line.APG, 1);
    EXPECT_GE(line.RPG, 1);
    EXPECT_GE(line.SPG, 0.3);
    EXPECT_GE(line.MPG, 15);
    EXPECT_LT(line.MPG, 30);
    EXPECT_GE(line.FGPercent, 0.25);
    EXPECT_LT(line.FGPercent, 0.65);
    EXPECT_GE(line.ThreePercent, 0.10);
    EXPECT_LT(line.ThreePercent, 0.45);
    if (line.PlayerPosition == 5) {
      EXPECT_GE(line.BPG, 1);
    } else {
      EXPECT_LT(line.BPG, 1.5);
    }
  }
  EXPECT_EQ(stats->Team(2).Players[14].Id, 0);

  // Later in the season the same entries are drawn again.
  const double before = stats->Team(2).Players[1].MPG;
  UpdateScrubStats(league.session(), *stats, 12);
  EXPECT_EQ(stats->Team(2).Players[1].Games, 12);
  EXPECT_NE(stats->Team(2).Players[1].MPG, before);
  EXPECT_TRUE(stats->Team(4).SchoolName.empty());
}

TEST(UpdateScrubStats, StopsWhenEveryEntryIsTaken) {
  testing::LeagueFixture league(42);
  league.AddScrubTeam("Little U", 45);
  CreateScrubTeamRoster(league.session(), "Little U", 45);
  auto stats = std::make_unique<PlayerStatsStore>();
  for (int i = 1; i <= PlayerStatsStore::kMaxTeams; ++i) {
    stats->Team(i).SchoolName = "Team " + std::to_string(i);
  }
  UpdateScrubStats(league.session(), *stats, 1);
  for (int i = 1; i <= PlayerStatsStore::kMaxTeams; ++i) {
    EXPECT_EQ(stats->Team(i).Players[1].Games, 0);
  }
}

}  // namespace
}  // namespace courtmere
