// The post-game recording: season and week figures of the players, the
// TeamStats rows, the result on equal points.
#include "engine/post_game.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine_fixture.h"
#include "store/config.h"

namespace courtmere::testing {
namespace {

GameStat Line(int id, int seconds) {
  GameStat s;
  s.Id = id;
  s.SecondsPlayed = seconds;
  return s;
}

struct Recording : ::testing::Test {
  DayResults day;
  PlayerStatsStore stats;
  Config config;

  void SetUp() override {
    day.TeamLines[3].Home.TeamName = "Home U";
    day.TeamLines[3].Away.TeamName = "Away U";
    stats.Team(1).SchoolName = "Home U";
    stats.Team(1).Players[2] = PlayerSeasonLine{};
    stats.Team(1).Players[2].Id = 41;
    stats.Team(1).Players[2].PlayerPosition = 3;
  }
  PlayerSeasonLine& Player() { return stats.Team(1).Players[2]; }
};

TEST_F(Recording, RatesTheExampleGameAt36Point5) {
  GameStat g = Line(41, 1830);
  g.Assists = 7;
  g.Points = 20;
  g.Steals = 2;
  g.OffRebounds = 3;
  g.DefRebounds = 4;
  g.Turnovers = 5;
  EXPECT_DOUBLE_EQ(GameRating(g), 36.5);

  day.PlayerLines[3][1] = g;
  config.CurrDay = "Thursday";
  RecordPlayerStats(day, stats, config, 3);
  EXPECT_EQ(Player().Games, 1);
  EXPECT_EQ(Player().Minutes, 30);  // 30.5 minutes round to even
  EXPECT_DOUBLE_EQ(Player().Score, 36.5);
  EXPECT_DOUBLE_EQ(Player().AwardScore, 36.5);  // no small-forward penalty on a weekday
  EXPECT_DOUBLE_EQ(Player().RPG, 7.0);
  EXPECT_DOUBLE_EQ(Player().FGPercent, 0.0);
}

TEST_F(Recording, SaturdayAveragesTheWeekAndTakes20FromASmallForward) {
  GameStat first = Line(41, 600);
  first.Points = 10;
  first.Assists = 2;
  day.PlayerLines[3][1] = first;
  config.CurrDay = "Thursday";
  RecordPlayerStats(day, stats, config, 3);

  GameStat second = Line(41, 600);
  second.Points = 20;
  second.DefRebounds = 6;
  day.PlayerLines[3][1] = second;
  config.CurrDay = "Saturday";
  RecordPlayerStats(day, stats, config, 3);

  EXPECT_DOUBLE_EQ(Player().WeekPoints, 15.0);
  EXPECT_DOUBLE_EQ(Player().WeekAssists, 1.0);
  EXPECT_DOUBLE_EQ(Player().WeekRebounds, 3.0);
  EXPECT_DOUBLE_EQ(Player().AwardScore, (13.0 + 26.0) / 2 - 20);
  EXPECT_EQ(Player().Games, 2);
  EXPECT_DOUBLE_EQ(Player().PPG, 15.0);
}

TEST_F(Recording, SkipsMenWhoSatAndTeamsPastTheLimit) {
  day.PlayerLines[3][1] = Line(41, 0);
  RecordPlayerStats(day, stats, config, 3);
  EXPECT_EQ(Player().Games, 0);
  EXPECT_DOUBLE_EQ(Player().AwardScore, 0.0);

  // The same school at index 150 is not found.
  stats.Team(1).SchoolName = "Elsewhere";
  stats.Team(150).SchoolName = "Home U";
  stats.Team(150).Players[1].Id = 41;
  day.PlayerLines[3][1] = Line(41, 900);
  RecordPlayerStats(day, stats, config, 3);
  EXPECT_EQ(stats.Team(150).Players[1].Games, 0);
}

TEST(TeamRecording, EqualPointsAreAnAwayWinAndPercentagesFollowTheirRules) {
  EngineFixture fixture;
  Store& store = fixture.store();
  store.Exec("UPDATE TeamStats SET FGPercent = 0.25 WHERE SchoolName = ?",
             std::string(kHomeSchool));
  DayResults day;
  DayTeamLine& teams = day.TeamLines[0];
  teams.GameType = "Conference";
  teams.Home.TeamName = kHomeSchool;
  teams.Away.TeamName = kAwaySchool;
  teams.Home.Points = 70;  // a home side without a shot: all free throws
  teams.Home.FreeThrowAttempts = 80;
  teams.Home.FreeThrowsMade = 70;
  teams.Away.Points = 70;
  teams.Away.ShotAttempts = 60;
  teams.Away.ShotsMade = 35;
  int ticks = 0;
  RecordTeamStats(store, day, 0, [&ticks] { ++ticks; });
  EXPECT_EQ(ticks, 2);

  auto row = [&](const char* school) {
    std::vector<double> values;
    Rows rows = store.Query(
        "SELECT TotalWins, TotalLosses, HomeLosses, AwayWins, ConfWins, ConfLosses, WinPercent, "
        "FGPercent, FGPercentAllowed, PointsAllowed, PPG FROM TeamStats WHERE SchoolName = ?",
        std::string(school));
    EXPECT_TRUE(rows.Next());
    for (int k = 0; k < 11; ++k) values.push_back(rows.Double(k));
    return values;
  };
  // Home: no shots keeps the old FGPercent of 0.25. Away: the win percent
  // is a hundredth of the winning fraction, nothing allowed from the field 0.
  EXPECT_EQ(row(kHomeSchool),
            (std::vector<double>{0, 1, 1, 0, 0, 1, 0.0, 0.25, 35.0 / 60.0, 70, 70}));
  EXPECT_EQ(row(kAwaySchool),
            (std::vector<double>{1, 0, 0, 1, 1, 0, 1.0 / 100.0, 35.0 / 60.0, 0.0, 70, 70}));
}

}  // namespace
}  // namespace courtmere::testing
