// The draft: the prospects' scores and order, the 29 teams' two rounds, the
// alumni rows of the first round and the stage it leaves.
#include <gtest/gtest.h>

#include <set>

#include "league/dynasty_fixture.h"
#include "league/head_coach.h"
#include "offseason/career_steps.h"
#include "offseason/nba_draft.h"
#include "people/player_writer.h"

namespace courtmere::testing {
namespace {

TEST(ProspectScore, RecruitsByPotentialAndAShortReachCosts) {
  EXPECT_DOUBLE_EQ(ProspectScore(true, 50, 90, 80), 50 * 0.2 + 90 * 0.8);
  EXPECT_DOUBLE_EQ(ProspectScore(false, 50, 90, 80), 50 * 0.65 + 90 * 0.35);
  const double full = ProspectScore(false, 80, 80, 75);
  EXPECT_DOUBLE_EQ(ProspectScore(false, 80, 80, 74), full - 2);
  EXPECT_DOUBLE_EQ(ProspectScore(false, 80, 80, 72), full - 2);
  EXPECT_DOUBLE_EQ(ProspectScore(false, 80, 80, 71), full - 5);
}

TEST(DraftOrder, TheOrderRunsTwice) {
  BlankProgram program(11);
  const std::vector<std::string> order = DraftOrder(program.session());
  ASSERT_EQ(order.size(), static_cast<size_t>(kProTeams));
  EXPECT_EQ(std::set<std::string>(order.begin(), order.end()).size(), order.size());
  EXPECT_EQ(PickTeam(order, 1), order[0]);
  EXPECT_EQ(PickTeam(order, 29), order[28]);
  EXPECT_EQ(PickTeam(order, 30), order[0]);
  EXPECT_EQ(PickTeam(order, 58), order[28]);
}

class DraftRun : public ::testing::Test {
 protected:
  DraftRun() {
    Store& store = program.store();
    AddHeadCoach(store, "Coach", "Home U", 1);
    store.Exec("UPDATE Config SET Stage = 'End Season', CurrYear = 2005 WHERE IdConfig = 0");
    program.session().config.Stage = "End Season";
    program.session().config.CurrYear = 2005;
  }
  // A leaver of `team` with the given ratings; the id orders equal scores.
  void Leaver(int id, const std::string& team, int overall, int potential) {
    Player p;
    p.Id = id;
    p.Name = "Player " + std::to_string(id);
    p.Team = team;
    p.HomeTown = "Dayton, OH";
    p.Overall = overall;
    p.Potential = potential;
    p.Reach = 80;
    p.PlayerPosition = kSF;
    p.NBAFlag = 1;
    p.PlayerYear = team == "East" ? "Recruit" : "Senior";
    AddPlayer(program.store(), p);
  }
  BlankProgram program{4};
};

TEST_F(DraftRun, PicksFollowTheScoresAndTheFirstRoundMakesAlumni) {
  Leaver(1, "East", 60, 95);    // a recruit: 87, first
  Leaver(2, "Home U", 80, 80);  // 80
  Leaver(3, "Away U", 80, 80);  // 80, after player 2
  for (int id = 10; id < 40; ++id) Leaver(id, "Away U", 60, 60);
  RunDraft(program.session(), CoachCareer());
  Store& store = program.store();
  EXPECT_EQ(store.ScalarText("SELECT Name FROM NBADraft WHERE Pick = 1"), "Player 1");
  EXPECT_EQ(store.ScalarText("SELECT School FROM NBADraft WHERE Pick = 1"), "High School(OH)");
  EXPECT_EQ(store.ScalarText("SELECT Name FROM NBADraft WHERE Pick = 2"), "Player 2");
  EXPECT_EQ(store.ScalarText("SELECT Name FROM NBADraft WHERE Pick = 3"), "Player 3");
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM NBADraft"), kDraftPicks);
  // 33 prospects: the later picks have no name.
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM NBADraft WHERE coalesce(Name, '') = ''"),
            kDraftPicks - 33);
  // Picks 2 to 29 are college players: 28 alumni; the recruit makes none.
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM Alumni"), 28);
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM Alumni WHERE Name = 'Player 1'"), 0);
  EXPECT_EQ(store.ScalarText("SELECT NBADraft FROM Alumni WHERE Name = 'Player 2'"),
            "Taken with the No. 2 pick overall by " +
                *store.ScalarText("SELECT Team FROM NBADraft WHERE Pick = 2") + ".");
  EXPECT_EQ(store.ScalarInt("SELECT YearLeft FROM Alumni WHERE Name = 'Player 2'"), 2005);
  EXPECT_EQ(store.ScalarInt("SELECT FirstRound FROM HeadCoach"), 1);
  // The draft changes no player; the stage moves on.
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM Player WHERE NBAFlag = 1"), 33);
  EXPECT_EQ(store.ScalarText("SELECT Stage FROM Config"), "NBA Draft");
}

TEST_F(DraftRun, ANoLeavesEverythingAsItWas) {
  Leaver(2, "Home U", 80, 80);
  program.ui().QueueAnswer(false);
  EXPECT_FALSE(ProceedWithDraft(program.session(), CoachCareer()));
  EXPECT_EQ(program.store().ScalarInt("SELECT count(*) FROM NBADraft"), 0);
  EXPECT_EQ(program.store().ScalarText("SELECT Stage FROM Config"), "End Season");
}

}  // namespace
}  // namespace courtmere::testing
