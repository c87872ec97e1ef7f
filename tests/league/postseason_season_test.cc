// Whole postseasons over seeded seasons, their games played by the engine:
// each conference tournament crowns one team that played every round, the
// NCT and the ACT draw full fields apart from each other, play their games
// on the calendar's days, and end with one unbeaten champion each; no team
// ever plays twice on one day.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "league/national_tourneys.h"
#include "league/postseason_fixture.h"
#include "league/seeded_name.h"

namespace courtmere {
namespace {

using testing::ColumnSet;
using testing::PostseasonFixture;

struct GameRow {
  int week;
  std::string day, home, away, type;
  int homeScore, awayScore;
  std::string Winner() const {
    return SeededName::Parse(homeScore > awayScore ? home : away).school;
  }
  std::string Loser() const {
    return SeededName::Parse(homeScore > awayScore ? away : home).school;
  }
};

std::vector<GameRow> Games(Store& store, const std::string& table, const std::string& where) {
  std::vector<GameRow> games;
  for (Rows r = store.Query("SELECT Week, GameDay, HomeTeam, AwayTeam, GameType, HomeScore, "
                            "AwayScore FROM " +
                            table + " WHERE " + where + " ORDER BY GameNo");
       r.Next();) {
    games.push_back({r.Int(0), r.Text(1), r.Text(2), r.Text(3), r.Text(4), r.Int(5), r.Int(6)});
  }
  return games;
}

bool IsActGame(const GameRow& g) {
  return g.type.rfind("ACT", 0) == 0;
}

class WholePostseason : public ::testing::TestWithParam<uint64_t> {
 protected:
  void SetUp() override {
    p_ = std::make_unique<PostseasonFixture>(GetParam(), PostseasonFixture::Scores::kEngine);
    p_->RunConferenceTourneys();
    p_->RunNationalTourneys();
  }
  Store& store() { return p_->store(); }
  std::unique_ptr<PostseasonFixture> p_;

  void ExpectEachConferenceTournamentCrownsOneTeamThatPlayedEveryRound() {
    for (const testing::LeagueRow& league : p_->Leagues()) {
      SCOPED_TRACE(league.conference);
      const int field = static_cast<int>(
          store()
              .ScalarInt("SELECT count(*) FROM Team WHERE Conference = ?", league.conference)
              .value());
      const std::vector<GameRow> games =
          Games(store(), league.table, "Week = 16 AND GameType = 'Tournament'");
      ASSERT_EQ(static_cast<int>(games.size()), field - 1);
      std::map<std::string, int> losses;
      std::map<std::string, std::set<std::string>> daysPlayed;
      for (const GameRow& g : games) {
        ASSERT_NE(g.homeScore, 0);
        ++losses[g.Loser()];
        daysPlayed[g.home].insert(g.day);
        daysPlayed[g.away].insert(g.day);
      }
      const std::set<std::string> champions = ColumnSet(
          store(), "SELECT SchoolName FROM Team WHERE Winner IN (1, 3) AND Conference = '" +
                       league.conference + "'");
      ASSERT_EQ(champions.size(), 1u);
      const std::string& champion = *champions.begin();
      EXPECT_EQ(losses.count(champion), 0u);
      EXPECT_EQ(static_cast<int>(losses.size()), field - 1);
      EXPECT_TRUE(daysPlayed[champion].count("Friday") && daysPlayed[champion].count("Saturday") &&
                  daysPlayed[champion].count("Sunday"));
      EXPECT_EQ(store().ScalarText("SELECT SchoolName FROM ConfTourney WHERE Conference = ? AND "
                                   "Seed = 27",
                                   league.conference),
                champion);
    }
  }

  void ExpectTheNctDrawsSixtyFourTeamsAndEveryAutomaticQualifier() {
    const std::set<std::string> nct =
        ColumnSet(store(), "SELECT SchoolName FROM NCTTourney WHERE Seed <= 16");
    EXPECT_EQ(nct.size(), 64u);
    EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM NCTTourney WHERE Seed <= 16").value(), 64);
    for (const char* region : {"East", "West", "Midwest", "South"}) {
      EXPECT_EQ(ColumnSet(store(), std::string("SELECT Seed FROM NCTTourney WHERE Seed <= 16 AND "
                                               "Conference = '") +
                                       region + "'")
                    .size(),
                16u)
          << region;
    }
    for (const char* sql : {"SELECT SchoolName FROM Team WHERE Winner IN (1, 3)",
                            "SELECT SchoolName FROM ScrubTeam WHERE Winner IN (1, 3)"}) {
      for (const std::string& school : ColumnSet(store(), sql))
        EXPECT_TRUE(nct.count(school)) << school;
    }
    const std::set<std::string> act =
        ColumnSet(store(), "SELECT SchoolName FROM ACTTourney WHERE Seed BETWEEN 21 AND 28");
    EXPECT_EQ(act.size(), 32u);
    for (const std::string& school : act) EXPECT_FALSE(nct.count(school)) << school;
  }

  void ExpectNationalGamesFallOnTheirDaysAndEndWithOneUnbeatenChampion() {
    const std::vector<GameRow> games = Games(store(), p_->UserTable(), "Week >= 17");
    std::map<std::string, int> nctLosses, actLosses, nctPlayed, actPlayed;
    std::map<std::pair<int, std::string>, int> nctDays, actDays;
    for (const GameRow& g : games) {
      ASSERT_NE(g.homeScore, 0) << g.home << " " << g.away;
      const bool act = IsActGame(g);
      (act ? actLosses : nctLosses)[g.Loser()]++;
      (act ? actPlayed : nctPlayed)[g.Winner()]++;
      (act ? actPlayed : nctPlayed)[g.Loser()]++;
      (act ? actDays : nctDays)[{g.week, g.day}]++;
    }
    const std::map<std::pair<int, std::string>, int> nctExpected = {
        {{17, "Thursday"}, 16}, {{17, "Friday"}, 16}, {{17, "Saturday"}, 8}, {{17, "Sunday"}, 8},
        {{18, "Thursday"}, 4},  {{18, "Friday"}, 4},  {{18, "Saturday"}, 2}, {{18, "Sunday"}, 2},
        {{19, "Saturday"}, 2},  {{20, "Monday"}, 1}};
    const std::map<std::pair<int, std::string>, int> actExpected = {
        {{17, "Tuesday"}, 8},   {{17, "Wednesday"}, 8}, {{18, "Monday"}, 8},
        {{18, "Wednesday"}, 4}, {{19, "Monday"}, 2},    {{19, "Wednesday"}, 1}};
    EXPECT_EQ(nctDays, nctExpected);
    EXPECT_EQ(actDays, actExpected);
    EXPECT_EQ(nctPlayed.size(), 64u);
    EXPECT_EQ(nctLosses.size(), 63u);
    EXPECT_EQ(actPlayed.size(), 32u);
    EXPECT_EQ(actLosses.size(), 31u);

    const std::optional<std::string> champion = NctChampion(store());
    ASSERT_TRUE(champion);
    EXPECT_EQ(nctLosses.count(*champion), 0u);
    EXPECT_EQ(nctPlayed[*champion], 6);
    const int winner =
        static_cast<int>(store()
                             .ScalarInt("SELECT Winner FROM Team WHERE SchoolName = ? UNION ALL "
                                        "SELECT Winner FROM ScrubTeam WHERE SchoolName = ?",
                                        *champion, *champion)
                             .value());
    EXPECT_GE(winner, 2);
    const std::string actChampion =
        store().ScalarText("SELECT SchoolName FROM ACTTourney WHERE Seed = 71").value();
    EXPECT_EQ(actLosses.count(actChampion), 0u);
    EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Team WHERE ACTWinner = 1 AND SchoolName = ?",
                                actChampion)
                      .value() +
                  store()
                      .ScalarInt("SELECT count(*) FROM ScrubTeam WHERE ACTWinner = 1 AND "
                                 "SchoolName = ?",
                                 actChampion)
                      .value(),
              1);
    EXPECT_EQ(store().ScalarText("SELECT Champ FROM NCTHistory").value(), *champion);
    EXPECT_EQ(store().ScalarText("SELECT Champ FROM ACTHistory").value(), actChampion);
  }

  void ExpectNoTeamPlaysTwiceOnOneDay() {
    std::set<std::tuple<int, std::string, std::string>> seen;
    std::vector<std::string> tables;
    for (const testing::LeagueRow& league : p_->Leagues()) tables.push_back(league.table);
    for (const std::string& table : tables) {
      for (const GameRow& g : Games(store(), table, "Week >= 16")) {
        for (const std::string& side : {g.home, g.away}) {
          EXPECT_TRUE(seen.insert({g.week, g.day, SeededName::Parse(side).school}).second)
              << SeededName::Parse(side).school << " twice on " << g.day << " of week " << g.week;
        }
      }
    }
  }
};

// One postseason per seed, every check on it.
TEST_P(WholePostseason, IsPlayedWhole) {
  ExpectEachConferenceTournamentCrownsOneTeamThatPlayedEveryRound();
  ExpectTheNctDrawsSixtyFourTeamsAndEveryAutomaticQualifier();
  ExpectNationalGamesFallOnTheirDaysAndEndWithOneUnbeatenChampion();
  ExpectNoTeamPlaysTwiceOnOneDay();
}

INSTANTIATE_TEST_SUITE_P(Seeds, WholePostseason, ::testing::Values(7u, 2026u));

}  // namespace
}  // namespace courtmere
