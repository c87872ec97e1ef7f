// The box-score file and the game log lines, to the character, and the
// reader that takes the box score back into grids.
#include "engine/box_score.h"

#include <gtest/gtest.h>

#include <fstream>

#include "engine/play_log.h"
#include "engine_fixture.h"

namespace courtmere::testing {
namespace {

struct BoxScore : ::testing::Test {
  TempFolder folder;
  ScriptedUi ui;
  Session session{ProgramFolder(folder.Path()), Rng(1), ui};
  Game game{session};

  void SetUp() override {
    for (int s = 0; s < 2; ++s) {
      GameSide& side = game.sides[s];
      side.RosterCount = s == 0 ? 9 : 12;
      side.Team().TeamName = s == 0 ? "St. John's" : "Lakeview State";
      for (int i = 1; i <= side.RosterCount; ++i) {
        side.Roster[i].Id = 100 * s + i;
        side.Texts[i].AbbrName = "A. Player" + std::to_string(i);
        side.Roster[i].PlayerPosition = i % 6;  // 0 prints as "C"
        side.Stats[i].Id = side.Roster[i].Id;
      }
    }
    GameStat& star = game.Home().Stats[1];
    star.SecondsPlayed = 1830;  // 30.5 minutes: 30
    star.ShotsMade = 10;
    star.ShotAttempts = 18;
    star.ThreesMade = 2;
    star.ThreeAttempts = 5;
    star.FreeThrowsMade = 3;
    star.FreeThrowAttempts = 4;
    star.Points = 25;
    star.Fouls = 4;
    star.PlusMinus = -12;
    game.Home().Team() = star;
    game.Home().Team().Id = 0;
    game.Home().Team().TeamName = "St. John's";
    game.Home().Team().SecondsPlayed = 12000;
    game.Away().Team().Points = 31;
    game.Home().Score = 25;
    game.Away().Score = 31;
  }
};

TEST_F(BoxScore, LaysOutEveryFieldAtItsWidth) {
  const std::vector<std::string> lines = FormatBoxScore(game);
  ASSERT_EQ(lines.size(), 3u + 16 + 1 + 16 + 1);
  EXPECT_EQ(lines[0], "St. John's Score: 25");
  EXPECT_EQ(lines[1], "Lakeview State Score: 31");
  EXPECT_EQ(lines[2], "");
  EXPECT_EQ(lines[3],
            "Name            Pos Min ShtsM Shots 3sM 3s FTM FT Ast TO OffReb DefReb ShotB Stl Fls "
            "+/- Pts");
  EXPECT_EQ(lines[4],
            "----            --- --- ----- ----- --- -- --- -- --- -- ------ ------ ----- --- --- "
            "--- ---");
  EXPECT_EQ(lines[5],
            "A. Player1      PG  30   10    18    2  5  3   4   0  0    0      0      0    0   4  "
            "-12 25");
  EXPECT_EQ(lines[10].substr(16, 4), "C   ");
  // A roster of 9 leaves rows 10 to 12 empty; the team row still stands at 13.
  EXPECT_EQ(lines[14], "");
  EXPECT_EQ(lines[16], "");
  EXPECT_EQ(lines[17],
            "----            --- --- ----- ----- --- -- --- -- --- -- ------ ------ ----- --- --- "
            "---");
  EXPECT_EQ(lines[18],
            "St. John's          200  10    18    2  5  3   4   0  0    0      0      0    0   4  "
            "-6  25");
  EXPECT_EQ(lines[19], "");
  EXPECT_EQ(lines[20].substr(0, 4), "Name");
  EXPECT_EQ(lines.back(), "");
}

TEST_F(BoxScore, GridsReadBackWhatWasWritten) {
  game.BoxFileName = folder / "Box1-0.txt";
  WriteBoxScore(game);
  const std::array<BoxGrid, 2> grids = LoadBoxGrids(game.BoxFileName);
  const auto& star = grids[0].Rows[1];
  const std::array<std::string, 18> expected = {"A. Player1", "PG", "30", "10", "18",  "2",
                                                "5",          "3",  "4",  "0",  "0",   "0",
                                                "0",          "0",  "0",  "4",  "-12", "25"};
  EXPECT_EQ(star, expected);
  EXPECT_EQ(grids[0].Rows[10][0], "");
  EXPECT_EQ(grids[0].Rows[14][2], "200");
  EXPECT_EQ(grids[0].Rows[14][16], "-6");
  EXPECT_EQ(grids[1].Rows[12][0], "A. Player12");
  EXPECT_EQ(grids[1].Rows[14][17], "31");
}

TEST_F(BoxScore, LogLinesArePaddedTo96AndCloseWithTheScore) {
  game.Half = 2;
  game.Clock = 65;
  game.ShotClock = 7;
  const std::string line = FormatLogLine(game, "A. Player1 Wins the tip");
  EXPECT_EQ(line.substr(0, 40), "2 - 01:05 - 07: A. Player1 Wins the tip ");
  EXPECT_EQ(line.size(), 96u + 7);
  EXPECT_EQ(line.substr(96), "25 - 31");
}

TEST(GameLog, HasItsHeadingAPeriodBlockAndNoBlockForAnEmptyPeriod) {
  EngineFixture fixture;
  Game game(fixture.session());
  DayResults day;
  ASSERT_EQ(fixture.Play(game, day, 4, true), 1);
  std::ifstream in(fixture.session().folder.Path("\\log\\GameLog1-4.txt"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  ASSERT_GT(lines.size(), 100u);
  EXPECT_EQ(lines[0], std::string(kAwaySchool) + " at " + kHomeSchool);
  EXPECT_EQ(lines[1], "");
  const std::string heading = "Time/ShotClock" + std::string(15, ' ') + "Action" +
                              std::string(65 - 10 - 14, ' ') + kHomeSchool + "-" + kAwaySchool;
  EXPECT_EQ(lines[2], heading);
  EXPECT_EQ(lines[3].substr(0, 16), "1 - 20:00 - 35: ");
  int blocks = 0;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (lines[i] != heading) continue;
    ++blocks;
    EXPECT_EQ(lines[i - 1], "") << "a block closes with an empty line";
  }
  const bool overtime =
      game.Home().Score == game.Away().Score || lines[lines.size() - 2].rfind("3 - ", 0) == 0;
  EXPECT_EQ(blocks, overtime ? blocks : 2);
  EXPECT_EQ(lines.back(), "");
}

}  // namespace
}  // namespace courtmere::testing
