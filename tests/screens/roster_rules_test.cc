// The user's roster rules and the depth chart he submits.
#include "screens/roster_rules.h"

#include <gtest/gtest.h>

#include "people/league_fixture.h"

namespace courtmere {
namespace {

class RosterRulesTest : public ::testing::Test {
 protected:
  RosterRulesTest() {
    league_.AddTeam("Home U", "East", 60, "Human");
    for (int i = 0; i < 12; ++i) ids_.push_back(league_.AddPlayer("Home U", 1 + i % 5, 50 + i));
  }
  Store& store() { return league_.store(); }
  Session& session() { return league_.session(); }
  const std::vector<std::string>& messages() { return league_.ui().Messages(); }
  std::string Name(int id) {
    return *store().ScalarText("SELECT Name FROM Player WHERE Id = ?", id);
  }

  testing::LeagueFixture league_;
  std::vector<int> ids_;
};

TEST_F(RosterRulesTest, ReleaseKeepsElevenActivePlayers) {
  const std::string name = Name(ids_[0]);
  store().Exec("UPDATE Team SET Inactive = ? WHERE SchoolName = 'Home U'", ids_[0]);
  league_.ui().QueueAnswer(false);
  EXPECT_FALSE(ReleasePlayer(session(), ids_[0]));
  EXPECT_EQ(league_.ui().Questions().back(),
            "Are you sure you wish to release " + name + "? This decision cannot be reversed.");
  EXPECT_TRUE(messages().empty());

  EXPECT_TRUE(ReleasePlayer(session(), ids_[0]));
  EXPECT_EQ(messages().back(), name + " has been removed from your team.");
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Player WHERE Id = ?", ids_[0]), 0);
  EXPECT_EQ(store().ScalarInt("SELECT Inactive FROM Team WHERE SchoolName = 'Home U'"), 0);

  // Eleven left: no more releases.
  EXPECT_FALSE(ReleasePlayer(session(), ids_[1]));
  EXPECT_EQ(messages().back(),
            "You would drop below an 11-man active roster if you released this player.");
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Player WHERE Id = ?", ids_[1]), 1);
}

TEST_F(RosterRulesTest, RedshirtOnceInACareer) {
  const std::string name = Name(ids_[2]);
  store().Exec("UPDATE Player SET Redshirt = 2 WHERE Id = ?", ids_[3]);
  EXPECT_FALSE(RedshirtPlayer(session(), ids_[3]));
  EXPECT_EQ(messages().back(), Name(ids_[3]) +
                                   " has been redshirted in the past. A player can only have one "
                                   "redshirt year in his college career.");
  EXPECT_TRUE(RedshirtPlayer(session(), ids_[2]));
  EXPECT_EQ(league_.ui().Questions().back(), "Are you sure you wish to redshirt " + name + "?");
  EXPECT_EQ(messages().back(),
            name +
                " has been redshirted and may not participate in any games this season.  If you "
                "do need this player during the season, you will need to remove his redshirt "
                "status.");
  EXPECT_EQ(store().ScalarInt("SELECT Redshirt FROM Player WHERE Id = ?", ids_[2]), 1);

  // Eleven active now: neither another redshirt nor the same one again.
  EXPECT_FALSE(RedshirtPlayer(session(), ids_[4]));
  EXPECT_EQ(messages().back(),
            "You would drop below an 11-man active roster if you redshirted this player. So, the "
            "player cannot be redshirted this season.");
  league_.AddPlayer("Home U", 1, 40);
  EXPECT_FALSE(RedshirtPlayer(session(), ids_[2]));
  EXPECT_EQ(messages().back(), name + " is already currently redshirting the season");

  // Activation is open during the season too.
  store().Exec("UPDATE Config SET Stage = 'Season' WHERE IdConfig = 0");
  EXPECT_TRUE(ActivatePlayer(session(), ids_[2]));
  EXPECT_EQ(league_.ui().Questions().back(),
            "Are you sure you wish to activate " + name +
                " from his redshirt season? This decision cannot be reversed.");
  EXPECT_EQ(messages().back(),
            name + " has been activated and may now participate in games this season.");
  EXPECT_EQ(store().ScalarInt("SELECT Redshirt FROM Player WHERE Id = ?", ids_[2]), 0);
}

TEST_F(RosterRulesTest, OnlyARedshirtingManCanBeActivated) {
  store().Exec("UPDATE Config SET Stage = 'Season' WHERE IdConfig = 0");
  store().Exec("UPDATE Player SET Redshirt = 2 WHERE Id = ?", ids_[5]);
  // Never redshirted, or his redshirt year used: nothing to activate, and
  // nothing is asked, said or changed.
  EXPECT_FALSE(ActivatePlayer(session(), ids_[4]));
  EXPECT_FALSE(ActivatePlayer(session(), ids_[5]));
  EXPECT_TRUE(league_.ui().Questions().empty());
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(store().ScalarInt("SELECT Redshirt FROM Player WHERE Id = ?", ids_[4]), 0);
  EXPECT_EQ(store().ScalarInt("SELECT Redshirt FROM Player WHERE Id = ?", ids_[5]), 2);

  // A redshirting man who is asked and the user says no stays a redshirt.
  store().Exec("UPDATE Player SET Redshirt = 1 WHERE Id = ?", ids_[6]);
  league_.ui().QueueAnswer(false);
  EXPECT_FALSE(ActivatePlayer(session(), ids_[6]));
  EXPECT_EQ(store().ScalarInt("SELECT Redshirt FROM Player WHERE Id = ?", ids_[6]), 1);
  EXPECT_TRUE(messages().empty());
}

TEST_F(RosterRulesTest, SwitchPositionOnlyBeforeTheSeason) {
  EXPECT_TRUE(SwitchPosition(session(), ids_[0], 4));
  EXPECT_EQ(messages().back(), Name(ids_[0]) + " has been switched to PF.");
  EXPECT_EQ(store().ScalarInt("SELECT PlayerPosition FROM Player WHERE Id = ?", ids_[0]), 4);
  store().Exec("UPDATE Config SET Stage = 'Season' WHERE IdConfig = 0");
  EXPECT_FALSE(RosterChangesOpen(session()));
  EXPECT_FALSE(SwitchPosition(session(), ids_[0], 5));
  EXPECT_FALSE(ReleasePlayer(session(), ids_[0]));
  EXPECT_FALSE(RedshirtPlayer(session(), ids_[0]));
  EXPECT_EQ(store().ScalarInt("SELECT PlayerPosition FROM Player WHERE Id = ?", ids_[0]), 4);
}

DepthChart Valid() {
  DepthChart c;
  c.ids = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3};
  c.inactive = 13;
  return c;
}

TEST(DepthChartProblem, EachRuleWithItsMessage) {
  EXPECT_EQ(DepthChartProblem(Valid()), "");
  DepthChart c = Valid();
  c.ids[7] = 0;
  EXPECT_EQ(DepthChartProblem(c), "Please complete the Depth Chart before exiting.");
  c = Valid();
  c.inactive = 0;
  EXPECT_EQ(DepthChartProblem(c), "Please complete the Depth Chart before exiting.");
  c = Valid();
  c.ids[4] = 1;  // PG1 also at C1
  EXPECT_EQ(DepthChartProblem(c),
            "Your Depth Chart has the same player starting at two positions. Please correct this "
            "and re-submit.");
  c = Valid();
  c.ids[10] = 6;  // PG2 again at PG3
  EXPECT_EQ(DepthChartProblem(c),
            "Your Depth Chart has the same player listed twice for the same position. Please "
            "correct this and re-submit.");
  c = Valid();
  c.ids[13] = 1;  // a third spot for player 1
  EXPECT_EQ(DepthChartProblem(c),
            "Your Depth Chart has the same player on the depth chart in more than two spots. "
            "Please correct this and re-submit.");
  c = Valid();
  c.inactive = 12;
  EXPECT_EQ(DepthChartProblem(c),
            "Your Depth Chart has the inactive player listed in the depth chart. Please correct "
            "this and re-submit.");
}

TEST_F(RosterRulesTest, ASubmittedChartIsWrittenAndItsInactiveMarked) {
  DepthChart c;
  for (int i = 0; i < 15; ++i) c.ids[i] = ids_[i % 11];
  c.inactive = ids_[11];
  ASSERT_EQ(DepthChartProblem(c), "");
  EXPECT_TRUE(SubmitDepthChart(session(), "Home U", c));
  EXPECT_EQ(messages().back(), "Your Depth Chart is now Updated.");
  EXPECT_EQ(store().ScalarInt("SELECT C3 FROM Team WHERE SchoolName = 'Home U'"), ids_[3]);
  EXPECT_EQ(store().ScalarInt("SELECT Inactive FROM Team WHERE SchoolName = 'Home U'"), ids_[11]);
  EXPECT_EQ(store().ScalarInt("SELECT Id FROM Player WHERE Inactive = 1"), ids_[11]);

  c.ids[0] = 0;
  EXPECT_FALSE(SubmitDepthChart(session(), "Home U", c));
  EXPECT_EQ(store().ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = 'Home U'"), ids_[0]);

  SaveTactics(session(), "Home U", {"Up Beat", "Inside", "Zone", "Full Court"});
  EXPECT_EQ(messages().back(), "Your Adjustments have been saved.");
  EXPECT_EQ(store().ScalarText("SELECT Press FROM Team WHERE SchoolName = 'Home U'"), "Full Court");

  league_.ui().QueueAnswer(false);
  EXPECT_FALSE(AutoSetLineup(session(), "Home U"));
  EXPECT_TRUE(AutoSetLineup(session(), "Home U"));
  EXPECT_EQ(league_.ui().Questions().back(),
            "Are you sure you want the computer to set your lineup?");
  EXPECT_NE(store().ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = 'Home U'"), 0);
}

}  // namespace
}  // namespace courtmere
