// Over many seeded games every box score adds up: points from the shots,
// the team row from its players, the header from the team rows, the minutes,
// and an overtime block in the log of every game tied after regulation.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "engine/box_score.h"
#include "engine/run_engine.h"
#include "engine_fixture.h"

namespace courtmere::testing {
namespace {

int PointsFromShots(const GameStat& s) {
  return 2 * s.ShotsMade + s.ThreesMade + s.FreeThrowsMade;
}

// Every counter of the team line against the sum over the players.
void ExpectTeamIsSumOfPlayers(const GameSide& side) {
  GameStat sum;
  for (int i = 1; i <= side.RosterCount; ++i) {
    const GameStat& p = side.Stats[i];
    sum.ShotAttempts += p.ShotAttempts;
    sum.ShotsMade += p.ShotsMade;
    sum.ThreeAttempts += p.ThreeAttempts;
    sum.ThreesMade += p.ThreesMade;
    sum.Points += p.Points;
    sum.OffRebounds += p.OffRebounds;
    sum.DefRebounds += p.DefRebounds;
    sum.Assists += p.Assists;
    sum.Turnovers += p.Turnovers;
    sum.FreeThrowAttempts += p.FreeThrowAttempts;
    sum.FreeThrowsMade += p.FreeThrowsMade;
    sum.Steals += p.Steals;
    sum.ShotBlocks += p.ShotBlocks;
    sum.SecondsPlayed += p.SecondsPlayed;
    EXPECT_EQ(p.Points, PointsFromShots(p));
  }
  const GameStat& t = side.Team();
  EXPECT_EQ(t.ShotAttempts, sum.ShotAttempts);
  EXPECT_EQ(t.ShotsMade, sum.ShotsMade);
  EXPECT_EQ(t.ThreeAttempts, sum.ThreeAttempts);
  EXPECT_EQ(t.ThreesMade, sum.ThreesMade);
  EXPECT_EQ(t.Points, sum.Points);
  EXPECT_EQ(t.OffRebounds, sum.OffRebounds);
  EXPECT_EQ(t.DefRebounds, sum.DefRebounds);
  EXPECT_EQ(t.Assists, sum.Assists);
  EXPECT_EQ(t.Turnovers, sum.Turnovers);
  EXPECT_EQ(t.FreeThrowAttempts, sum.FreeThrowAttempts);
  EXPECT_EQ(t.FreeThrowsMade, sum.FreeThrowsMade);
  EXPECT_EQ(t.Steals, sum.Steals);
  EXPECT_EQ(t.ShotBlocks, sum.ShotBlocks);
  // The team line counts five men for every second; a side left without a
  // man who may come in (a chart place out of the roster found for a man
  // fouled out) plays a blank record, whose seconds nobody is credited with.
  EXPECT_LE(sum.SecondsPlayed, t.SecondsPlayed);
}

std::vector<std::string> ReadLines(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// The score at the end of the last line of period 2 in a game log.
std::string ScoreAfterRegulation(const std::vector<std::string>& log) {
  std::string last;
  for (const std::string& line : log) {
    if (line.rfind("2 - ", 0) == 0 && line.size() > 96) last = line.substr(96);
  }
  return last;
}

bool HasOvertimeBlock(const std::vector<std::string>& log) {
  for (const std::string& line : log) {
    if (line.rfind("3 - ", 0) == 0) return true;
  }
  return false;
}

// Every record on the floor, the bench and the reserve queue points at its
// own line, and a blank record at none: the game finds lines through
// StatIndex without checking it.
void ExpectRecordsPointAtTheirLines(const GameSide& side) {
  auto check = [&](const GamePlayer& man) {
    if (man.Id == 0) {
      EXPECT_EQ(man.StatIndex, 0) << "a blank record";
      return;
    }
    EXPECT_EQ(side.StatIndexOf(man), side.FindStatIndex(man.Id)) << "player " << man.Id;
  };
  for (int slot = 1; slot <= 5; ++slot) check(side.Court[slot]);
  for (const GamePlayer& man : side.Bench) check(man);
  for (const GamePlayer& man : side.Reserve) check(man);
}

TEST(GameConsistency, TwoThousandSeededGamesAddUp) {
  EngineFixture fixture(11);
  Game game(fixture.session());
  DayResults day;
  int overtimes = 0;
  int tiedAfterRegulation = 0;
  for (int g = 0; g < 2000; ++g) {
    if (g % 20 == 0) fixture.HealEveryone();
    GameRequest request;
    request.HomeTeam = g % 2 == 0 ? kHomeSchool : kAwaySchool;
    request.AwayTeam = g % 2 == 0 ? kAwaySchool : kHomeSchool;
    request.GameType = "Conference";
    request.BatchIndex = g % 151;
    request.GameNo = 1;
    std::string box;
    std::string log = "log";
    ASSERT_EQ(RunEngine(game, day, request, box, log), 1)
        << "game " << g << ": "
        << (fixture.ui().Messages().empty() ? "" : fixture.ui().Messages().back());

    for (int s = 0; s < 2; ++s) {
      const GameSide& side = game.sides[s];
      EXPECT_EQ(side.Team().Points, PointsFromShots(side.Team()));
      EXPECT_EQ(side.Score, side.Team().Points);
      ExpectTeamIsSumOfPlayers(side);
      ExpectRecordsPointAtTheirLines(side);
      int boxMinutes = 0;
      for (int i = 1; i <= side.RosterCount; ++i) {
        boxMinutes += static_cast<int>(std::nearbyint(side.Stats[i].SecondsPlayed / 60.0));
      }
      const int teamMinutes = static_cast<int>(std::nearbyint(side.Team().SecondsPlayed / 60.0));
      EXPECT_NEAR(boxMinutes, teamMinutes, 6);
    }

    const std::vector<std::string> boxLines = ReadLines(box);
    ASSERT_GE(boxLines.size(), 2u);
    EXPECT_EQ(boxLines[0], request.HomeTeam + " Score: " + std::to_string(game.Home().Score));
    EXPECT_EQ(boxLines[1], request.AwayTeam + " Score: " + std::to_string(game.Away().Score));

    const std::vector<std::string> logLines = ReadLines(log);
    const std::string regulation = ScoreAfterRegulation(logLines);
    const bool overtime = HasOvertimeBlock(logLines);
    if (!overtime) {
      for (const GameSide& side : game.sides) EXPECT_LE(side.Team().SecondsPlayed, 200 * 60);
    }
    const size_t dash = regulation.find(" - ");
    ASSERT_NE(dash, std::string::npos);
    if (regulation.substr(0, dash) == regulation.substr(dash + 3)) {
      ++tiedAfterRegulation;
      EXPECT_TRUE(overtime) << "game " << g << " tied at " << regulation;
    }
    overtimes += overtime ? 1 : 0;
  }
  EXPECT_GT(tiedAfterRegulation, 0);
  EXPECT_EQ(overtimes, tiedAfterRegulation);
}

}  // namespace
}  // namespace courtmere::testing
