// The schedule pass on a dynasty made by File > New: rosters, ratings and
// the background field as the set-up leaves them. Numbering and the
// tournament fields are checked on the small leagues of schedule_tests.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "league/dynasty_fixture.h"
#include "schedule/challenge_games.h"
#include "schedule/league_schedule.h"

namespace courtmere {
namespace {

struct Game {
  int week;
  std::string day;
  std::string home;
  std::string away;
};

std::vector<Game> AllGames(Store& store) {
  std::vector<Game> games;
  for (int id = 0; id <= 9; ++id) {
    const std::string table =
        id == 0 ? "NonConfSchedule" : "League" + std::to_string(id) + "Schedule";
    for (Rows rows = store.Query("SELECT Week, GameDay, HomeTeam, AwayTeam FROM " + table);
         rows.Next();) {
      games.push_back({rows.Int(0), rows.Text(1), rows.Text(2), rows.Text(3)});
    }
  }
  return games;
}

// Empty schedule tables, as the offseason leaves them before the pass.
void ClearSchedules(Store& store) {
  for (int id = 1; id <= 9; ++id)
    store.Exec("DELETE FROM League" + std::to_string(id) + "Schedule");
  store.Exec("DELETE FROM NonConfSchedule");
  store.Exec("DELETE FROM PreSeasonTourney");
  store.Exec("UPDATE Config SET MaxGameNo = 0 WHERE IdConfig = 0");
}

TEST(NewDynastyScheduleTest, ANewDynastysLeagueGetsAWholeSeason) {
  testing::DynastyFixture dynasty;
  Store& store = dynasty.store();
  ClearSchedules(store);
  BuildLeagueSchedules(dynasty.session());
  BuildChallengeGames(dynasty.session());

  std::set<std::tuple<std::string, int, std::string>> busy;
  std::map<std::string, int> perSchool;
  for (const Game& g : AllGames(store)) {
    for (const std::string& school : {g.home, g.away}) {
      if (school.size() > 1 && school[1] == '-') continue;
      ++perSchool[school];
      // The ACC-Big Ten challenge shares Sunday of week 1 with the finals.
      if (g.week == 1 && g.day == "Sunday") continue;
      EXPECT_TRUE(busy.insert({school, g.week, g.day}).second) << school << " week " << g.week;
    }
  }
  EXPECT_EQ(store.RowCount("PreSeasonTourney"), 24);
  for (Rows rows = store.Query("SELECT SchoolName FROM Team"); rows.Next();) {
    EXPECT_GE(perSchool[rows.Text(0)], 25) << rows.Text(0);
  }
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM NonConfSchedule WHERE Week = 1 AND "
                            "GameDay = 'Sunday' AND GameType = 'NonConference'"),
            9);
}

}  // namespace
}  // namespace courtmere
