// The conference challenge: the ACC (League 1, Challenge 3) against the Big
// Ten on Sunday of week 1, school for school in one drawn order, home sides
// alternating, numbered on from the season's schedule.
#include <gtest/gtest.h>

#include <set>

#include "schedule/challenge_games.h"
#include "schedule/league_schedule.h"
#include "schedule/schedule_league.h"
#include "store/config.h"

namespace courtmere {
namespace {

using testing::ScheduleLeague;
using testing::ScheduleRow;

std::vector<std::string> Ordered(Store& store, const std::string& conference,
                                 const std::string& order) {
  std::vector<std::string> schools;
  for (Rows rows = store.Query("SELECT SchoolName FROM Team WHERE Conference = ? ORDER BY " + order,
                               conference);
       rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  return schools;
}

TEST(ChallengeTest, TheChallengersMeetSchoolForSchoolInOneOrder) {
  for (uint64_t seed = 1; seed <= 8; ++seed) {
    ScheduleLeague league({"Big Sky", "MAC", "Northeast"}, seed);
    BuildLeagueSchedules(league.session());
    const int before = LoadConfig(league.store()).MaxGameNo;
    BuildChallengeGames(league.session());

    std::vector<ScheduleRow> games;
    for (const ScheduleRow& row : league.NonConfRows()) {
      if (row.GameNo > before) games.push_back(row);
    }
    ASSERT_EQ(games.size(), 9u);  // the ACC's nine against nine of the Big Ten's eleven
    EXPECT_EQ(LoadConfig(league.store()).MaxGameNo, before + 9);
    EXPECT_EQ(league.session().config.MaxGameNo, before + 9);
    std::vector<std::string> acc;
    std::vector<std::string> bigTen;
    for (size_t i = 0; i < games.size(); ++i) {
      const ScheduleRow& g = games[i];
      EXPECT_EQ(g.GameNo, before + static_cast<int>(i) + 1);
      EXPECT_EQ(g.Week, 1);
      EXPECT_EQ(g.GameDay, "Sunday");
      EXPECT_EQ(g.GameType, "NonConference");
      const bool accAway = i % 2 == 0;  // the first, third, ... game
      EXPECT_EQ(accAway ? g.AwayConf : g.HomeConf, "ACC");
      EXPECT_EQ(accAway ? g.HomeConf : g.AwayConf, "Big Ten");
      acc.push_back(accAway ? g.AwayTeam : g.HomeTeam);
      bigTen.push_back(accAway ? g.HomeTeam : g.AwayTeam);
    }
    int orders = 0;
    for (const char* order : {"SchedGroup ASC, SchoolName ASC", "SchedGroup DESC, SchoolName DESC",
                              "Prestige ASC, SchoolName DESC", "Prestige DESC, SchoolName ASC"}) {
      std::vector<std::string> big = Ordered(league.store(), "Big Ten", order);
      big.resize(9);
      orders += Ordered(league.store(), "ACC", order) == acc && big == bigTen;
    }
    EXPECT_GE(orders, 1) << "seed " << seed;
  }
}

TEST(ChallengeTest, WithoutAChallengeNothingIsAdded) {
  ScheduleLeague league({"Big Sky", "MAC", "Northeast"}, 2);
  league.store().Exec("UPDATE League SET Challenge = 0");
  BuildLeagueSchedules(league.session());
  const size_t rows = league.NonConfRows().size();
  BuildChallengeGames(league.session());
  EXPECT_EQ(league.NonConfRows().size(), rows);
}

}  // namespace
}  // namespace courtmere
