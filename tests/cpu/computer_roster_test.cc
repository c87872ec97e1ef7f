// The pass over all computer teams: coach roles, inactive players and the
// depth charts written to the store.
#include "cpu/computer_roster.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "people/league_fixture.h"
#include "people/player_creation.h"
#include "people/staff_creation.h"

namespace courtmere {
namespace {

constexpr const char* kChart[15] = {"PG1", "SG1", "SF1", "PF1", "C1",  "PG2", "SG2", "SF2",
                                    "PF2", "C2",  "PG3", "SG3", "SF3", "PF3", "C3"};

std::vector<int> Chart(Store& store, const std::string& table, const std::string& school) {
  std::vector<int> ids;
  for (const char* column : kChart) {
    ids.push_back(static_cast<int>(*store.ScalarInt(
        "SELECT " + std::string(column) + " FROM " + table + " WHERE SchoolName = ?", school)));
  }
  return ids;
}

void ExpectLegalChart(Store& store, const std::string& table, const std::string& players,
                      const std::string& school) {
  const std::vector<int> chart = Chart(store, table, school);
  std::map<int, int> spots;
  for (int i = 0; i < 15; ++i) {
    ASSERT_NE(chart[i], 0) << school << " " << kChart[i];
    EXPECT_EQ(store.ScalarText("SELECT Team FROM " + players + " WHERE Id = ?", chart[i]), school);
    ++spots[chart[i]];
  }
  for (auto [id, n] : spots) EXPECT_LE(n, 2) << school;
  EXPECT_EQ(std::set<int>(chart.begin(), chart.begin() + 5).size(), 5u);
  for (int p = 0; p < 5; ++p) {
    EXPECT_EQ(std::set<int>({chart[p], chart[p + 5], chart[p + 10]}).size(), 3u);
  }
  const auto inactive =
      store.ScalarInt("SELECT Inactive FROM " + table + " WHERE SchoolName = ?", school);
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM " + players + " WHERE Team = ? AND Inactive = 1",
                            school),
            1);
  EXPECT_EQ(
      store.ScalarInt("SELECT Id FROM " + players + " WHERE Team = ? AND Inactive = 1", school),
      inactive);
}

class ComputerRosterTest : public ::testing::Test {
 protected:
  ComputerRosterTest() : league_(31) {
    league_.AddTeam("Home U", "East", 60, "Human");
    for (const char* school : {"Duke", "St. John's", "Tulsa"}) league_.AddTeam(school, "East", 70);
    league_.AddScrubTeam("Little U", 45);
    Store::Transaction tx(league_.store());
    CreateCoaches(league_.session(), 0);
    PlayerBatch batch = PlayerBatch::Begin(league_.session());
    for (const char* school : {"Home U", "Duke", "St. John's", "Tulsa"}) {
      CreateTeamRoster(league_.session(), batch, school, "East", 70);
    }
    CreateScrubTeamRoster(league_.session(), batch, "Little U", 45);
    batch.Save(league_.session());
    tx.Commit();
  }
  Store& store() { return league_.store(); }

  testing::LeagueFixture league_;
};

TEST_F(ComputerRosterTest, EveryComputerTeamGetsALegalChartAndItsRoles) {
  SetCPURoster(league_.session());
  for (const char* school : {"Duke", "St. John's", "Tulsa"}) {
    ExpectLegalChart(store(), "Team", "Player", school);
    // One offensive coach, one defensive coach and one recruiter.
    for (const char* role : {"OffPoints = 1 AND RecPoints = 1", "DefPoints = 1 AND RecPoints = 1",
                             "RecPoints = 2 AND OffPoints = 0 AND DefPoints = 0"}) {
      EXPECT_EQ(store().ScalarInt(
                    std::string("SELECT count(*) FROM Coach WHERE Team = ? AND ") + role, school),
                1)
          << school << " " << role;
    }
  }
  ExpectLegalChart(store(), "ScrubTeam", "ScrubPlayer", "Little U");
  // The user's team is left to him.
  EXPECT_EQ(store().ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = 'Home U'"), 0);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Coach WHERE Team = 'Home U' AND RecPoints > 0"),
            0);
  // Under the auto-sim it is set too.
  SetCPURoster(league_.session(), true);
  ExpectLegalChart(store(), "Team", "Player", "Home U");
}

// A built chart stands until it is rebuilt; rebuilt, it leaves the injured
// man out and makes him the inactive one. A team with nobody fit keeps its
// chart and has no inactive man.
TEST_F(ComputerRosterTest, ABuiltChartStandsUntilRebuilt) {
  SetCPURoster(league_.session());
  const std::vector<int> before = Chart(store(), "Team", "Duke");
  store().Exec("UPDATE Player SET Health = 'Sprained Ankle' WHERE Id = ?", before[0]);
  SetCPURoster(league_.session());
  EXPECT_EQ(Chart(store(), "Team", "Duke"), before);

  SetTeamLineup(league_.session(), "Duke", 0);
  const std::vector<int> after = Chart(store(), "Team", "Duke");
  EXPECT_EQ(std::count(after.begin(), after.end(), before[0]), 0);
  EXPECT_EQ(store().ScalarInt("SELECT Inactive FROM Team WHERE SchoolName = 'Duke'"), before[0]);

  const std::vector<int> tulsa = Chart(store(), "Team", "Tulsa");
  store().Exec("UPDATE Player SET Health = 'Flu' WHERE Team = 'Tulsa'");
  SetTeamLineup(league_.session(), "Tulsa", 0);
  EXPECT_EQ(Chart(store(), "Team", "Tulsa"), tulsa);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Player WHERE Team = 'Tulsa' AND Inactive = 1"),
            0);
}

TEST_F(ComputerRosterTest, InactiveIsTheRedshirtElseTheWeakestUnfitElseTheWeakest) {
  const std::string school = "Tulsa";
  const int weakest = static_cast<int>(
      *store().ScalarInt("SELECT Id FROM Player WHERE Team = ? ORDER BY Overall ASC", school));
  EXPECT_EQ(PickInactive(league_.session(), school), weakest);
  const int best = static_cast<int>(
      *store().ScalarInt("SELECT Id FROM Player WHERE Team = ? ORDER BY Overall DESC", school));
  store().Exec("UPDATE Player SET Suspended = 1 WHERE Id = ?", best);
  EXPECT_EQ(PickInactive(league_.session(), school), best);
  const int other = static_cast<int>(*store().ScalarInt(
      "SELECT Id FROM Player WHERE Team = ? AND Id <> ? AND Id <> ?", school, best, weakest));
  store().Exec("UPDATE Player SET Redshirt = 1 WHERE Id = ?", other);
  EXPECT_EQ(PickInactive(league_.session(), school), other);
  store().Exec("UPDATE Player SET Inactive = 1 WHERE Team = ?", school);
  SetTeamLineup(league_.session(), school, 0);
  EXPECT_EQ(
      store().ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND Inactive = 1", school), 1);
  // Neither the redshirt nor the suspended man is in the chart.
  const auto chart = Chart(store(), "Team", school);
  EXPECT_EQ(std::count(chart.begin(), chart.end(), other), 0);
  EXPECT_EQ(std::count(chart.begin(), chart.end(), best), 0);

  const int scrubWeakest = static_cast<int>(*store().ScalarInt(
      "SELECT Id FROM ScrubPlayer WHERE Team = 'Little U' ORDER BY Overall ASC"));
  EXPECT_EQ(PickScrubInactive(league_.session(), "Little U"), scrubWeakest);
}

TEST(CoachRoles, TheCoachBestAtBothTakesTheRoleWhereHeLeadsByMore) {
  testing::LeagueFixture league;
  Store& s = league.store();
  auto add = [&s](int id, int off, int def) {
    s.Append("Coach", {{"Id", int64_t{id}},
                       {"Team", "Duke"},
                       {"OffCoach", int64_t{off}},
                       {"DefCoach", int64_t{def}}});
  };
  // Coach 1 leads on offence by 20 and on defence by 5: he coaches offence.
  add(1, 90, 80);
  add(2, 70, 75);
  add(3, 60, 60);
  SetCoachRoles(league.session(), "Duke");
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE OffPoints = 1"), 1);
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE DefPoints = 1"), 2);
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE RecPoints = 2"), 3);

  // Roles that stand are kept.
  s.Exec("UPDATE Coach SET OffCoach = 10 WHERE Id = 1");
  SetCoachRoles(league.session(), "Duke");
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE OffPoints = 1"), 1);

  // Equal leads: the defensive role goes to the second-best defender.
  s.Exec("DELETE FROM Coach");
  add(4, 90, 90);
  add(5, 80, 80);
  add(6, 50, 50);
  SetCoachRoles(league.session(), "Duke");
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE OffPoints = 1"), 4);
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE DefPoints = 1"), 5);

  // A role without a holder draws both again: the defensive role that
  // stood with coach 6 goes to coach 5, and coach 6 keeps none.
  s.Exec("UPDATE Coach SET OffPoints = 0, DefPoints = 0, RecPoints = 2");
  s.Exec("UPDATE Coach SET DefPoints = 1, RecPoints = 1 WHERE Id = 6");
  SetCoachRoles(league.session(), "Duke");
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE OffPoints = 1"), 4);
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Coach WHERE DefPoints = 1"), 1);
  EXPECT_EQ(s.ScalarInt("SELECT Id FROM Coach WHERE DefPoints = 1"), 5);
  EXPECT_EQ(s.ScalarInt("SELECT RecPoints FROM Coach WHERE Id = 6"), 2);
  EXPECT_EQ(s.ScalarInt("SELECT Sum(RecPoints) FROM Coach"), 4);

  // A lone coach holds both roles.
  s.Exec("DELETE FROM Coach");
  add(7, 50, 40);
  SetCoachRoles(league.session(), "Duke");
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Coach WHERE OffPoints = 1 AND DefPoints = 1"), 1);
}

TEST(UserLineup, TheUsersTeamIsJudgedByWhatHisScoutsSee) {
  testing::LeagueFixture league;
  league.AddTeam("Home U", "East", 60, "Human");
  league.AddTeam("Away U", "East", 60);
  std::map<std::string, std::vector<int>> ids;
  for (const char* school : {"Home U", "Away U"}) {
    for (auto [position, overall] : std::vector<std::pair<int, double>>{
             {1, 90}, {1, 85}, {2, 70}, {3, 60}, {4, 55}, {5, 50}}) {
      ids[school].push_back(league.AddPlayer(school, position, overall));
    }
  }
  // His scouts think little of the guard and much of the forward.
  league.store().Exec("UPDATE Player SET ScoutOverall = 40 WHERE Id = ?", ids["Home U"][2]);
  league.store().Exec("UPDATE Player SET ScoutOverall = 75 WHERE Id = ?", ids["Home U"][3]);
  SetTeamLineup(league.session(), "Away U", 0);
  SetTeamLineup(league.session(), "Home U", 0);
  EXPECT_EQ(league.store().ScalarInt("SELECT SF1 FROM Team WHERE SchoolName = 'Away U'"),
            ids["Away U"][1]);
  EXPECT_EQ(league.store().ScalarInt("SELECT SG1 FROM Team WHERE SchoolName = 'Home U'"),
            ids["Home U"][1]);
}

}  // namespace
}  // namespace courtmere
