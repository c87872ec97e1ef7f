// The game log's grid: a school's two lists of games merged by week, each
// game from the school's side, and the files behind a game.
#include "screens/game_log.h"

#include <gtest/gtest.h>

#include <fstream>

#include "people/league_fixture.h"
#include "screens/box_score_view.h"

namespace courtmere {
namespace {

class GameLogTest : public ::testing::Test {
 protected:
  GameLogTest() {
    league_.AddTeam("St. John's", "East", 60, "Human");
    league_.AddTeam("Duke", "South", 80);
    league_.AddTeam("Clemson", "South", 50);
    store().Exec("UPDATE Team SET Conference = 'Big East'");
    store().Append("League", {{"Id", int64_t{3}}, {"Conference", "Big East"}});
    store().Append(
        "TeamStats",
        {{"SchoolName", "Duke"}, {"TotalWins", int64_t{5}}, {"TotalLosses", int64_t{2}}});
    league_.AddScrubTeam("Siena", 30);
    store().Exec("UPDATE ScrubTeam SET Wins = 3, Losses = 9");
  }
  Store& store() { return league_.store(); }
  void Game(const char* table, int no, int week, const char* day, const char* home,
            const char* away, int homeScore = 0, int awayScore = 0, const char* log = "",
            const std::string& box = "") {
    store().Append(table, {{"GameNo", int64_t{no}},
                           {"Week", int64_t{week}},
                           {"GameDay", day},
                           {"HomeTeam", home},
                           {"AwayTeam", away},
                           {"HomeScore", int64_t{homeScore}},
                           {"AwayScore", int64_t{awayScore}},
                           {"GameLog", log},
                           {"BoxScore", box}});
  }

  testing::LeagueFixture league_;
};

TEST_F(GameLogTest, TheListsMergeByWeekWithThursdayFirst) {
  Game("League3Schedule", 1, 2, "Saturday", "St. John's", "Duke");
  Game("NonConfSchedule", 2, 2, "Thursday", "Siena", "St. John's");
  Game("NonConfSchedule", 3, 3, "Saturday", "St. John's", "Siena");
  Game("League3Schedule", 4, 3, "Thursday", "Clemson", "St. John's");
  Game("NonConfSchedule", 5, 1, "Saturday", "Duke", "Clemson");
  std::vector<int> order;
  for (const GameLogRow& row : TeamGameLog(store(), "St. John's")) order.push_back(row.GameNo);
  // In week 3 the non-conference game is on a Saturday: the conference game goes first.
  EXPECT_EQ(order, (std::vector<int>{2, 1, 4, 3}));
}

TEST_F(GameLogTest, EachGameIsSeenFromTheSchoolsSide) {
  Game("NonConfSchedule", 1, 1, "Thursday", "Siena", "St. John's", 70, 75);
  Game("League3Schedule", 2, 2, "Saturday", "St. John's", "Duke", 60, 81);
  // HomeScore 0 is a game not played, whatever the away score says.
  Game("League3Schedule", 3, 3, "Saturday", "Duke", "St. John's", 0, 12);
  const std::vector<GameLogRow> rows = TeamGameLog(store(), "St. John's");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].Team, "Siena");
  EXPECT_EQ(rows[0].Record, "3-9") << "a background school's own record";
  EXPECT_EQ(rows[0].Result, "Win");
  EXPECT_EQ(rows[0].Score, "75-70");
  EXPECT_EQ(rows[1].Team, "Duke");
  EXPECT_EQ(rows[1].Record, "5-2");
  EXPECT_EQ(rows[1].Result, "Loss");
  EXPECT_EQ(rows[1].Score, "60-81");
  EXPECT_EQ(rows[2].Result, "");
  EXPECT_EQ(rows[2].Score, "");
}

TEST_F(GameLogTest, ASchoolWithoutConferenceGamesShowsTheOthers) {
  store().Exec("DELETE FROM League");
  Game("NonConfSchedule", 1, 1, "Thursday", "Siena", "St. John's");
  Game("League3Schedule", 2, 2, "Saturday", "St. John's", "Duke");
  const std::vector<GameLogRow> rows = TeamGameLog(store(), "St. John's");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].GameNo, 1);
}

TEST_F(GameLogTest, AGameOffersItsLogOnlyWhenItHasOne) {
  Game("NonConfSchedule", 1, 1, "Thursday", "Siena", "St. John's", 70, 75, "log/g1.txt");
  Game("League3Schedule", 2, 2, "Saturday", "St. John's", "Duke", 60, 81, "log/g2.txt");
  Game("League3Schedule", 3, 3, "Saturday", "Duke", "St. John's", 50, 40, "");
  Game("League3Schedule", 4, 4, "Saturday", "Duke", "St. John's", 50, 40, "none");
  EXPECT_EQ(GameLogFile(store(), 1, "Big East"), std::filesystem::path("log/g1.txt"));
  EXPECT_EQ(GameLogFile(store(), 2, "Big East"), std::filesystem::path("log/g2.txt"));
  EXPECT_FALSE(GameLogFile(store(), 3, "Big East"));
  EXPECT_FALSE(GameLogFile(store(), 4, "Big East"));
  EXPECT_FALSE(GameLogFile(store(), 2, "ACC")) << "not in the conference shown";
}

TEST_F(GameLogTest, ABoxScoreOpensOnlyWhenItsFileExists) {
  const std::filesystem::path box = league_.session().folder.Path("\\log\\Box7.txt");
  std::filesystem::create_directories(box.parent_path());
  std::ofstream(box) << "St. John's Score: 75\nSiena Score: 70\n";
  Game("NonConfSchedule", 7, 1, "Thursday", "St. John's", "Siena", 75, 70, "", box.string());
  Game("League3Schedule", 8, 2, "Saturday", "St. John's", "Duke", 60, 81, "", "gone.txt");
  Game("League3Schedule", 9, 3, "Saturday", "St. John's", "Duke", 0, 0, "", "");
  EXPECT_EQ(BoxScoreFile(store(), 7, "League3Schedule"), box);
  EXPECT_FALSE(BoxScoreFile(store(), 8, "League3Schedule"));
  EXPECT_FALSE(BoxScoreFile(store(), 9, "League3Schedule"));
  const BoxScoreHeader header = ReadBoxScoreHeader(box);
  EXPECT_EQ(header.HomeTeam, "St. John's");
  EXPECT_EQ(header.HomeScore, "75");
  EXPECT_EQ(header.AwayTeam, "Siena");
  EXPECT_EQ(header.AwayScore, "70");
}

TEST_F(GameLogTest, ANameOnABoxScoreFindsItsPlayer) {
  const int id = league_.AddPlayer("St. John's", 1, 60);
  store().Exec("UPDATE Player SET AbbrName = ? WHERE Id = ?", "D. O'Hara", id);
  EXPECT_EQ(BoxScorePlayer(league_.session(), "St. John's", "D. O'Hara"), id);
  EXPECT_FALSE(BoxScorePlayer(league_.session(), "St. John's", ""));
  EXPECT_TRUE(league_.ui().Messages().empty());
  EXPECT_FALSE(BoxScorePlayer(league_.session(), "Duke", "D. O'Hara"));
  EXPECT_EQ(league_.ui().Messages().back(), "Error displaying the player. The code is 1");
}

}  // namespace
}  // namespace courtmere
