// Over many seeded games every box score adds up: points from the shots,
// the team row from its players and what the rules booked to an empty slot,
// in memory and in the box file, the header from the team rows, the minutes,
// and an overtime block in the log of every game tied after regulation.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fstream>
#include <sstream>
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

// The counters of a box-score row, Min to Pts, in the order of the heading.
using BoxRow = std::array<int, 16>;

BoxRow RowOf(const GameStat& s) {
  return {s.SecondsPlayed, s.ShotsMade,      s.ShotAttempts,      s.ThreesMade,
          s.ThreeAttempts, s.FreeThrowsMade, s.FreeThrowAttempts, s.Assists,
          s.Turnovers,     s.OffRebounds,    s.DefRebounds,       s.ShotBlocks,
          s.Steals,        s.Fouls,          s.PlusMinus,         s.Points};
}

// The counters that must add up from the players to the team: all but the
// minutes and the plus-minus.
constexpr std::array<int, 13> kSummed = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15};
constexpr int kTurnovers = 8;
constexpr int kFouls = 13;
constexpr std::array<const char*, 16> kColumn = {
    "Min", "ShtsM",  "Shots",  "3sM",   "3s",  "FTM", "FT",  "Ast",
    "TO",  "OffReb", "DefReb", "ShotB", "Stl", "Fls", "+/-", "Pts"};

// Every counter of the team line is the sum over the players and what the
// rules booked to an empty slot; only fouls and turnovers ever go there.
void ExpectTeamIsSumOfPlayers(const GameSide& side) {
  BoxRow sum = RowOf(side.Unattributed);
  for (int i = 1; i <= side.RosterCount; ++i) {
    const GameStat& p = side.Stats[i];
    const BoxRow row = RowOf(p);
    for (int k = 0; k < 16; ++k) sum[k] += row[k];
    EXPECT_EQ(p.Points, PointsFromShots(p));
  }
  const BoxRow team = RowOf(side.Team());
  for (int k : kSummed) {
    EXPECT_EQ(team[k], sum[k]) << side.School << " " << kColumn[k];
    if (k != kTurnovers && k != kFouls) {
      EXPECT_EQ(RowOf(side.Unattributed)[k], 0) << kColumn[k];
    }
  }
  // The team line counts five men for every second; a side left without a
  // man who may come in (a chart place out of the roster found for a man
  // fouled out) plays a blank record, whose seconds nobody is credited with.
  EXPECT_LE(sum[0], team[0]);
}

// The numbers of a box-score row: everything after its first 20 characters
// (the name and position, or the school).
BoxRow ParseBoxRow(const std::string& line) {
  BoxRow row{};
  std::istringstream in(line.substr(20));
  for (int& v : row) in >> v;
  return row;
}

// The printed rows of the box file add up to each team row, less what the
// rules booked to an empty slot.
void ExpectBoxFileAddsUp(const std::vector<std::string>& box, const Game& game) {
  size_t at = 0;
  for (const GameSide& side : game.sides) {
    while (at < box.size() && box[at].rfind("----", 0) != 0) ++at;
    ASSERT_LT(at + 14, box.size());
    BoxRow sum = RowOf(side.Unattributed);
    for (size_t i = at + 1; i <= at + 12; ++i) {
      if (box[i].empty()) continue;
      const BoxRow row = ParseBoxRow(box[i]);
      for (int k : kSummed) sum[k] += row[k];
    }
    const BoxRow team = ParseBoxRow(box[at + 14]);
    for (int k : kSummed) EXPECT_EQ(team[k], sum[k]) << side.School << " " << kColumn[k];
    at += 15;
  }
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
  int unattributed = 0;
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
    ExpectBoxFileAddsUp(boxLines, game);
    for (const GameSide& side : game.sides) {
      unattributed += side.Unattributed.Fouls + side.Unattributed.Turnovers;
    }
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
  // Over this many games the rules do book fouls to empty slots.
  EXPECT_GT(unattributed, 0);
  EXPECT_EQ(overtimes, tiedAfterRegulation);
}

}  // namespace
}  // namespace courtmere::testing
