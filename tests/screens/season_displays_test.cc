// The season's display screens: a school's schedule over every table, the
// leader boards from the season's figures, and the injury report.
#include <gtest/gtest.h>

#include "league/seeded_name.h"
#include "people/league_fixture.h"
#include "screens/injuries.h"
#include "screens/leaders.h"
#include "screens/team_notes.h"
#include "screens/team_schedule.h"
#include "store/session.h"

namespace courtmere {
namespace {

class SeasonDisplaysTest : public ::testing::Test {
 protected:
  SeasonDisplaysTest() {
    store().Append("League", {{"Id", int64_t{1}}, {"Conference", "Big East"}});
    store().Append("League", {{"Id", int64_t{2}}, {"Conference", "ACC"}});
    for (const char* school : {"St. John's", "Villanova"}) AddTeam(school, "Big East");
    for (const char* school : {"Duke", "Clemson"}) AddTeam(school, "ACC");
    league_.AddScrubTeam("Québec A&M", 30);
  }
  void AddTeam(const std::string& school, const std::string& conference) {
    league_.AddTeam(school, "East", 60);
    store().Exec("UPDATE Team SET Conference = ? WHERE SchoolName = ?", conference, school);
  }
  void Game(const char* table, int gameNo, int week, const char* day, const std::string& home,
            const std::string& away, const char* type, int homeScore = 0, int awayScore = 0) {
    store().Append(table, {{"GameNo", int64_t{gameNo}},
                           {"Week", int64_t{week}},
                           {"GameDay", day},
                           {"HomeTeam", home},
                           {"AwayTeam", away},
                           {"GameType", type},
                           {"HomeScore", int64_t{homeScore}},
                           {"AwayScore", int64_t{awayScore}},
                           {"BoxScore", homeScore ? "/log/Box" + std::to_string(gameNo) : ""}});
  }
  Session& session() { return league_.session(); }
  Store& store() { return league_.store(); }

  testing::LeagueFixture league_;
};

TEST_F(SeasonDisplaysTest, AScheduleGathersEveryTableInCalendarOrder) {
  Game("League1Schedule", 9, 6, "Saturday", "Villanova", "St. John's", "Conference", 70, 75);
  Game("NonConfSchedule", 3, 2, "Thursday", "St. John's", "Québec A&M", "NonConference", 88, 61);
  Game("NonConfSchedule", 4, 2, "Saturday", "Duke", "St. John's", "NonConference");
  Game("NonConfSchedule", 1, 1, "Sunday", "St. John's", "Clemson", "Hawaii Classic", 60, 66);
  Game("NonConfSchedule", 2, 1, "Thursday", "Duke", "Clemson", "NonConference", 80, 70);
  // A national tournament's rows name their schools with the seed.
  Game("League1Schedule", 40, 17, "Thursday", "1. Duke", "16. St. John's", "East", 90, 50);
  Game("League1Schedule", 41, 17, "Thursday", "2. Saint St. John's", "15. Clemson", "East");

  const std::vector<ScheduleGame> games = TeamSchedule(store(), "St. John's");
  ASSERT_EQ(games.size(), 5u);
  std::vector<int> order;
  for (const ScheduleGame& g : games) order.push_back(g.GameNo);
  EXPECT_EQ(order, (std::vector<int>{1, 3, 4, 9, 40}));

  EXPECT_EQ(games[0].Site, "Neutral") << "a preseason tournament has no home floor";
  EXPECT_EQ(ResultText(games[0]), "L 60-66");
  EXPECT_EQ(games[1].Site, "Home");
  EXPECT_EQ(games[1].Opponent, "Québec A&M");
  EXPECT_EQ(ResultText(games[1]), "W 88-61");
  EXPECT_EQ(games[1].BoxScore, "/log/Box3");
  EXPECT_EQ(games[2].Site, "Away");
  EXPECT_FALSE(games[2].Played);
  EXPECT_EQ(ResultText(games[2]), "");
  EXPECT_EQ(games[3].Site, "Away");
  EXPECT_EQ(ResultText(games[3]), "W 75-70") << "the school's score comes first, away or not";
  EXPECT_EQ(games[4].Opponent, "Duke");
  EXPECT_EQ(games[4].Site, "Neutral");
  EXPECT_EQ(ResultText(games[4]), "L 50-90");
}

TEST(SeededNameTest, ASeedIsANumberFollowedByAPointAndComesBackAsItWas) {
  const SeededName seeded = SeededName::Parse("12. St. John's");
  EXPECT_EQ(seeded.seed, 12);
  EXPECT_EQ(seeded.school, "St. John's");
  EXPECT_EQ(seeded.Text(), "12. St. John's");
  for (const char* school : {"St. John's", "76ers. Tech", "3 Rivers", "123. Academy"}) {
    const SeededName plain = SeededName::Parse(school);
    EXPECT_EQ(plain.seed, 0) << school;
    EXPECT_EQ(plain.school, school);
    EXPECT_EQ(plain.Text(), school);
  }
}

class LeadersTest : public SeasonDisplaysTest {
 protected:
  LeadersTest() {
    int slotTeam = 0;
    for (const char* school : {"St. John's", "Villanova", "Duke", "Québec A&M"}) {
      TeamSeasonLines& team = session().seasonStats.Team(++slotTeam);
      team.SchoolName = school;
    }
  }
  // A player with `games` games and `points` points, and shots as given.
  int Add(int team, int slot, int games, int points, int shots = 0, int made = 0) {
    const std::string school = session().seasonStats.Team(team).SchoolName;
    const int id = league_.AddPlayer(school, 1 + slot % 5, 60);
    store().Exec("UPDATE Player SET Name = ? WHERE Id = ?", "Player " + std::to_string(id), id);
    PlayerSeasonLine& p = session().seasonStats.Team(team).Players[slot];
    p.Id = id;
    p.Games = games;
    p.Points = points;
    p.Shots = shots;
    p.ShotsMade = made;
    return id;
  }
};

// Places are shared by what the board shows: 14.9 and 14.857 both read 14.9.
TEST_F(LeadersTest, ABoardRanksPerGameAndSharesTiedPlaces) {
  const int a = Add(1, 1, 10, 200);  // 20.0
  const int b = Add(3, 1, 10, 149);  // 14.9
  const int c = Add(2, 2, 7, 104);   // 14.857
  const int d = Add(1, 2, 4, 100);   // 25.0 in too few games
  Add(4, 1, 10, 400);                // a background team's player
  const std::vector<LeaderLine> rows = Leaders(session(), "", LeaderStat::kPoints);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].PlayerId, a);
  EXPECT_EQ(rows[0].ValueText, "20.0");
  EXPECT_EQ(rows[0].School, "St. John's");
  EXPECT_EQ(rows[0].Name, "Player " + std::to_string(a));
  EXPECT_EQ(rows[1].Rank, 2);
  EXPECT_EQ(rows[2].Rank, 2) << "a tie shares its place";
  EXPECT_EQ(rows[2].ValueText, "14.9");
  EXPECT_EQ((std::set<int>{rows[1].PlayerId, rows[2].PlayerId}), (std::set<int>{b, c}));
  for (const LeaderLine& row : rows) EXPECT_NE(row.PlayerId, d);
}

TEST_F(LeadersTest, AConferenceBoardKeepsToItsSchools) {
  Add(1, 1, 10, 100);
  Add(3, 1, 10, 300);
  const std::vector<LeaderLine> rows = Leaders(session(), "Big East", LeaderStat::kPoints);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].School, "St. John's");
}

TEST_F(LeadersTest, APercentageNeedsItsAttempts) {
  const int few = Add(1, 1, 10, 30, 15, 12);     // 80%, but 1.5 attempts a game
  const int many = Add(1, 2, 10, 100, 100, 45);  // 45%
  const std::vector<LeaderLine> rows = Leaders(session(), "", LeaderStat::kFieldGoals);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].PlayerId, many);
  EXPECT_EQ(rows[0].ValueText, "45.0");
  EXPECT_NE(rows[0].PlayerId, few);
}

TEST_F(LeadersTest, ABoardStopsAtTwentyFiveUnlessThePlaceIsShared) {
  int slot = 0;
  for (int i = 0; i < 30; ++i) {
    const int team = 1 + i / 15;
    slot = slot % 15 + 1;
    Add(team, slot, 10, i < 24 ? 300 - i : 50);  // places 25 to 30 share 50 points
  }
  const std::vector<LeaderLine> rows = Leaders(session(), "", LeaderStat::kPoints);
  EXPECT_EQ(rows.size(), 30u);
  EXPECT_EQ(rows.back().Rank, 25);
}

TEST_F(SeasonDisplaysTest, TheInjuryReportListsTheHurtOfTheFirstDivision) {
  const int hurt = league_.AddPlayer("Duke", 5, 70);
  store().Exec(
      "UPDATE Player SET Name = 'Zed', Health = 'Broken Foot', TimeInjured = 3 "
      "WHERE Id = ?",
      hurt);
  const int other = league_.AddPlayer("St. John's", 1, 70);
  store().Exec(
      "UPDATE Player SET Name = 'Seán O''Neil', Health = 'Sprained Ankle', "
      "TimeInjured = 1 WHERE Id = ?",
      other);
  store().Exec("UPDATE Player SET Health = 'Good' WHERE Health IS NULL");
  const int recruit = league_.AddPlayer("East", 1, 70);
  store().Exec("UPDATE Player SET Health = 'Flu' WHERE Id = ?", recruit);

  const std::vector<InjuryRow> all = Injuries(store(), "");
  ASSERT_EQ(all.size(), 2u) << "a recruit's region is no school";
  EXPECT_EQ(all[0].School, "Duke");
  EXPECT_EQ(all[0].Injury, "Broken Foot");
  EXPECT_EQ(all[0].WeeksOut, 3);
  EXPECT_EQ(all[0].Position, "C");
  EXPECT_EQ(all[1].Name, "Seán O'Neil");

  const std::vector<InjuryRow> bigEast = Injuries(store(), "Big East");
  ASSERT_EQ(bigEast.size(), 1u);
  EXPECT_EQ(bigEast[0].PlayerId, other);
}

TEST_F(SeasonDisplaysTest, TeamNotesGatherNotesAndLettersNewestWeekFirst) {
  store().Exec("INSERT INTO Messages (Type, Week, Message) VALUES (?, ?, ?)", "Team", 1,
               "Welcome to St. John's.\nThe season starts soon.");
  store().Exec("INSERT INTO Messages (Type, Week, Message) VALUES (?, ?, ?)", "Injury", 3,
               "José Núñez sprained an ankle");
  store().Exec(
      "INSERT INTO InboxMessage (Week, Year, Sender, Subject, Text) VALUES (?, ?, ?, ?, ?)", 3, 1,
      "Athletic Director", "Poll", "We are ranked.");
  store().Exec(
      "INSERT INTO InboxMessage (Week, Year, Sender, Subject, Text) VALUES (?, ?, ?, ?, ?)", 2, 1,
      "Scout", "Report", "Duke runs the floor.");

  const std::vector<TeamNote> notes = TeamNotes(store());
  ASSERT_EQ(notes.size(), 4u);
  std::vector<std::string> subjects;
  std::vector<int> weeks;
  for (const TeamNote& n : notes) {
    subjects.push_back(n.Subject);
    weeks.push_back(n.Week);
  }
  EXPECT_EQ(weeks, (std::vector<int>{3, 3, 2, 1}));
  EXPECT_EQ(subjects, (std::vector<std::string>{"José Núñez sprained an ankle", "Poll", "Report",
                                                "Welcome to St. John's."}));
  EXPECT_EQ(notes[1].From, "Athletic Director");
  EXPECT_EQ(notes[1].Text, "We are ranked.");
  EXPECT_EQ(notes[3].From, "Team");
  EXPECT_EQ(notes[3].Text, "Welcome to St. John's.\nThe season starts soon.");
}

}  // namespace
}  // namespace courtmere
