// The engine's entry: background teams, the depth-chart failure, replay
// from a fixed seed, the leaders and the state file.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "engine/box_score.h"
#include "engine/debug_dump.h"
#include "engine/run_engine.h"
#include "engine/team_loader.h"
#include "engine_fixture.h"

namespace courtmere::testing {
namespace {

TEST(RunEngineEntry, ABackgroundTeamPlaysUnderTheSameRules) {
  EngineFixture fixture(5);
  fixture.AddScrubSchool("Hilltop College", 11, 50, 99);
  Game game(fixture.session());
  DayResults day;
  ASSERT_EQ(fixture.Play(game, day, 2, false, true, "Hilltop College", kHomeSchool), 1);
  EXPECT_EQ(game.Home().RosterCount, 11);
  EXPECT_EQ(game.Home().OffCoach, 45);
  EXPECT_EQ(day.TeamLines[2].Home.TeamName, "Hilltop College");
  EXPECT_EQ(day.TeamLines[2].Home.Points, game.Home().Score);
  EXPECT_EQ(day.PlayerLines[2][1].Id, game.Home().Roster[1].Id);
  EXPECT_EQ(day.PlayerLines[2][1 + DayResults::kAwayOffset].Id, game.Away().Roster[1].Id);
}

TEST(RunEngineEntry, AChartTheRepairCannotFillStopsTheGame) {
  EngineFixture fixture(5);
  fixture.AddSchool("Empty State", 0, 50, 3);
  Game game(fixture.session());
  DayResults day;
  EXPECT_EQ(fixture.Play(game, day, 0, false, true, kHomeSchool, "Empty State"), 0);
  ASSERT_FALSE(fixture.ui().Messages().empty());
  EXPECT_EQ(fixture.ui().Messages().back(),
            "Please set the depth chart for Empty State before trying to sim this game.");
}

TEST(RunEngineEntry, AFixedSeedReplaysTheGameAndTwoGamesKeepApart) {
  EngineFixture first(21);
  EngineFixture second(21);
  Game a(first.session());
  Game b(second.session());
  DayResults dayA;
  DayResults dayB;
  ASSERT_EQ(first.Play(a, dayA, 0, false, false), 1);
  ASSERT_EQ(second.Play(b, dayB, 0, false, false), 1);
  EXPECT_EQ(FormatBoxScore(a), FormatBoxScore(b));
  // A second game on the first value overwrites it, not the other one.
  const std::vector<std::string> before = FormatBoxScore(b);
  ASSERT_EQ(first.Play(a, dayA, 1, false, false), 1);
  EXPECT_NE(FormatBoxScore(a), before);
  EXPECT_EQ(FormatBoxScore(b), before);
  EXPECT_EQ(dayB.TeamLines[0].Home.Points, b.Home().Score);
}

TEST(RunEngineEntry, KeepsEachSidesLeaders) {
  EngineFixture fixture(8);
  Game game(fixture.session());
  DayResults day;
  GameRequest request;
  request.HomeTeam = kHomeSchool;
  request.AwayTeam = kAwaySchool;
  request.KeepLeaders = 1;
  request.WriteFiles = false;
  std::string box;
  std::string log = "none";
  ASSERT_EQ(RunEngine(game, day, request, box, log), 1);
  int most = 0;
  for (int i = 1; i <= game.Home().RosterCount; ++i) {
    most = std::max(most, game.Home().Stats[i].Points);
  }
  EXPECT_EQ(game.Leaders.Points[0], most);
  EXPECT_FALSE(game.Leaders.PointsName[0].empty());
  EXPECT_GT(game.Leaders.Rebounds[1], 0);
}

// Every roster text of a side, in roster order: (name, year, health).
std::vector<std::string> FullTexts(const GameSide& side) {
  std::vector<std::string> texts;
  for (int i = 1; i <= side.RosterCount; ++i) {
    const PlayerTexts& t = side.Texts[i];
    texts.push_back(t.Name + "|" + t.PlayerYear + "|" + t.Health);
  }
  return texts;
}

TEST(RunEngineEntry, OnlyAGameThatShowsItsPlaysReadsTheFullTexts) {
  EngineFixture fixture(12);
  fixture.AddScrubSchool("Hilltop College", 11, 50, 99);
  Game game(fixture.session());
  DayResults day;
  ASSERT_EQ(fixture.Play(game, day, 0, false, true, "Hilltop College", kHomeSchool), 1);
  for (const GameSide& side : game.sides) {
    EXPECT_FALSE(side.FullTexts);
    for (int i = 1; i <= side.RosterCount; ++i) {
      EXPECT_EQ(side.Texts[i].AbbrName, "P. Pl" + std::to_string(side.Roster[i].Id));
      EXPECT_EQ(FullTexts(side)[i - 1], "||");
    }
  }

  // Read afterwards, a man hurt in the game is found, with his injury.
  const int hurt = game.Away().Roster[2].Id;
  fixture.store().Exec("UPDATE Player SET TimeInjured = 3, Health = 'Sprained Ankle' WHERE Id = ?",
                       hurt);
  LoadFullTexts(game, Side::Away);
  EXPECT_EQ(FullTexts(game.Away())[1], "Pl" + std::to_string(hurt) + " Test|Junior|Sprained Ankle");
  fixture.HealEveryone();

  // With its log the same value reads them, a background roster's included.
  ASSERT_EQ(fixture.Play(game, day, 1, true, true, "Hilltop College", kHomeSchool), 1);
  for (const GameSide& side : game.sides) {
    EXPECT_TRUE(side.FullTexts);
    for (int i = 1; i <= side.RosterCount; ++i) {
      const std::string name = "Pl" + std::to_string(side.Roster[i].Id) + " Test";
      EXPECT_EQ(FullTexts(side)[i - 1], name + "|Junior|" + side.Texts[i].Health);
      EXPECT_FALSE(side.Texts[i].Health.empty()) << name;
    }
  }
}

TEST(RunEngineEntry, DebugDumpWritesTheStateFile) {
  EngineFixture fixture(9);
  Game game(fixture.session());
  DayResults day;
  ASSERT_EQ(fixture.Play(game, day, 0, false, false), 1);
  const std::filesystem::path file = DebugDump(game);
  EXPECT_EQ(file.filename().string(),
            std::string(kHomeSchool) + "-" + kAwaySchool + std::to_string(game.Clock) + ".txt");
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(fixture.ui().Messages().back(),
            "The Debug file " + file.filename().string() + " has been created.");
  // The game showed no plays; the dump reads the names it shows.
  const std::string text = DebugDumpText(game);
  const std::string starter = game.Home().TextsOf(game.Home().Court[1]).Name;
  EXPECT_FALSE(starter.empty());
  EXPECT_NE(text.find(std::string(kHomeSchool) + " Starters\n1. " + starter + " ID: "),
            std::string::npos);
  EXPECT_NE(text.find(", SubRate: Normal"), std::string::npos);
  EXPECT_NE(text.find(" Stats and Info\nID: "), std::string::npos);
}

}  // namespace
}  // namespace courtmere::testing
