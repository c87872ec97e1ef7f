// The standings and the strength of a schedule.
#include "league/standings.h"

#include <gtest/gtest.h>

#include "league/schedule_strength.h"
#include "people/league_fixture.h"

namespace courtmere {
namespace {

using testing::LeagueFixture;

class StandingsTest : public ::testing::Test {
 protected:
  void AddSchool(const std::string& school, const std::string& conference,
                 const std::string& division, int rating, const std::string& owner = "Computer") {
    league_.AddTeam(school, "East", 50, owner);
    league_.store().Exec(
        "UPDATE Team SET Conference = ?, Division = ?, TeamRating = ? WHERE SchoolName = ?",
        conference, division, rating, school);
    league_.store().Append("TeamStats", {{"SchoolName", school}});
  }
  void Record(const std::string& school, int confWins, int confLosses, int wins, int losses) {
    league_.store().Exec(
        "UPDATE TeamStats SET ConfWins = ?, ConfLosses = ?, TotalWins = ?, TotalLosses = ?, "
        "WinPercent = ? WHERE SchoolName = ?",
        confWins, confLosses, wins, losses,
        wins + losses > 0 ? wins / ((wins + losses) * 100.0) : 0.0, school);
  }
  void Game(int league, const std::string& home, const std::string& away) {
    league_.store().Exec("INSERT INTO League" + std::to_string(league) +
                             "Schedule (GameNo, Week, GameDay, HomeTeam, AwayTeam, GameType) "
                             "VALUES (1, 8, 'Thursday', ?, ?, 'Conference')",
                         home, away);
  }
  std::vector<std::string> Names(const StandingsTable& t) {
    std::vector<std::string> names;
    for (const StandingsRow& r : t.Rows) names.push_back(r.SchoolName);
    return names;
  }
  LeagueFixture league_;
};

TEST_F(StandingsTest, ConferenceWinsFirstThenOverallWinsAndLossesPlayNoPart) {
  league_.store().Exec("INSERT INTO League (Id, Conference, SchedType) VALUES (1, 'MVC', '10')");
  league_.store().Append("HeadCoach", {{"Name", "Coach"}, {"Team", "Drake"}});
  AddSchool("Creighton", "MVC", "None", 500);
  AddSchool("Drake", "MVC", "None", 450, "Human");
  AddSchool("Bradley", "MVC", "None", 460);
  AddSchool("Evansville", "MVC", "None", 440);
  Record("Creighton", 4, 0, 9, 0);
  Record("Drake", 5, 9, 10, 14);
  Record("Bradley", 4, 3, 12, 5);
  Record("Evansville", 4, 0, 12, 0);
  const Standings s = ConferenceStandings(league_.store(), "MVC");
  EXPECT_EQ(s.Title, "MVC Standings");
  ASSERT_EQ(s.Tables.size(), 1u);
  // Bradley and Evansville are level on both: fewer conference losses first.
  EXPECT_EQ(Names(s.Tables[0]),
            (std::vector<std::string>{"Drake", "Evansville", "Bradley", "Creighton"}));
  EXPECT_TRUE(s.Tables[0].Rows[0].User);
  EXPECT_FALSE(s.Tables[0].Rows[1].User);
  EXPECT_EQ(WinPctText(s.Tables[0].Rows[1].WinPercent), "1.000");
  EXPECT_EQ(WinPctText(s.Tables[0].Rows[0].WinPercent), "0.417");
  EXPECT_EQ(WinPctText(0), "0.000");
}

TEST_F(StandingsTest, AConferenceWithDivisionsHasATableForEach) {
  AddSchool("Dayton", "Atlantic 10", "West", 500);
  AddSchool("Xavier", "Atlantic 10", "West", 520);
  AddSchool("Temple", "Atlantic 10", "East", 510);
  Record("Xavier", 2, 0, 2, 0);
  const Standings s = ConferenceStandings(league_.store(), "Atlantic 10");
  ASSERT_EQ(s.Tables.size(), 2u);
  EXPECT_EQ(s.Tables[0].Division, "East");
  EXPECT_EQ(Names(s.Tables[0]), (std::vector<std::string>{"Temple"}));
  EXPECT_EQ(s.Tables[1].Division, "West");
  EXPECT_EQ(Names(s.Tables[1]), (std::vector<std::string>{"Xavier", "Dayton"}));
  const Standings nation = NationalStandings(league_.store());
  EXPECT_EQ(nation.Title, "National Standings");
  EXPECT_EQ(Names(nation.Tables[0]).front(), "Xavier");
}

TEST_F(StandingsTest, ScheduleStrengthIsTheMeanRatingOfConferenceOpponents) {
  league_.store().Exec("INSERT INTO League (Id, Conference, SchedType) VALUES (7, 'MVC', '10')");
  league_.store().Exec("INSERT INTO League (Id, Conference, SchedType) VALUES (8, 'WAC', '10')");
  AddSchool("Creighton", "MVC", "None", 500);
  AddSchool("Drake", "MVC", "None", 451);
  AddSchool("Bradley", "MVC", "None", 460);
  AddSchool("Fresno State", "WAC", "None", 300);
  AddSchool("Hawaii", "WAC", "None", 400);
  Game(7, "Creighton", "Drake");
  Game(7, "Drake", "Creighton");  // a double round-robin opponent counts twice
  Game(7, "Bradley", "Creighton");
  Game(8, "Fresno State", "Hawaii");
  league_.store().Append("NonConfSchedule", {{"GameNo", int64_t{9}},
                                             {"HomeTeam", "Creighton"},
                                             {"AwayTeam", "Fresno State"},
                                             {"GameType", "NonConference"}});
  UpdateScheduleStrength(league_.session());
  auto strength = [&](const char* school) {
    return *league_.store().ScalarDouble("SELECT ScheduleStrength FROM Team WHERE SchoolName = ?",
                                         school);
  };
  EXPECT_DOUBLE_EQ(strength("Creighton"), 454.0);  // (451 + 451 + 460) / 3
  EXPECT_DOUBLE_EQ(strength("Drake"), 500.0);
  EXPECT_DOUBLE_EQ(strength("Fresno State"), 400.0);
  // Results change nothing: only the ratings of the opponents count.
  league_.store().Exec("UPDATE League7Schedule SET HomeScore = 80, AwayScore = 60");
  league_.store().Exec("UPDATE TeamStats SET TotalWins = 9");
  UpdateScheduleStrength(league_.session());
  EXPECT_DOUBLE_EQ(strength("Creighton"), 454.0);
  league_.store().Exec("UPDATE Team SET TeamRating = 452 WHERE SchoolName = 'Drake'");
  UpdateScheduleStrength(league_.session());
  EXPECT_DOUBLE_EQ(strength("Creighton"), 454.7);  // one decimal
}

}  // namespace
}  // namespace courtmere
