// Recruiting in the running season: the budget the week's last step gives,
// week 6 in a running game against after a load, the pool's updates and the
// draft's picks, and the points question of Saturday.
#include <gtest/gtest.h>

#include "recruiting/pool_updates.h"
#include "recruiting/recruit_decision.h"
#include "recruiting/recruit_points.h"
#include "recruiting/season_recruiting.h"
#include "recruiting_fixture.h"
#include "season/day_step.h"

namespace courtmere::testing {
namespace {

class RecruitingSeason : public RecruitingFixture {
 protected:
  RecruitingSeason() { run().recruiting = &recruiting_; }
  RecruitingPeriod Period() { return recruiting_.Period(config()); }
  SeasonRecruiting recruiting_;
};

TEST_F(RecruitingSeason, TheWeeksLastStepSetsTheNewBudgetAndClearsTheWeek) {
  const std::vector<int> ids = ListRecruits(2);
  SimTo(2, "Thursday");
  EXPECT_EQ(Period(), RecruitingPeriod::kContact);
  const int budget = PointsAvail();
  ASSERT_GE(budget, 10);
  ASSERT_TRUE(RecordRecruitDecision(session(), "Call", ids[0], 10).Done);
  EXPECT_EQ(PointsAvail(), budget - 10);
  ui().QueueAnswer(true);  // the points question of Saturday
  SimTo(3, "Thursday");
  EXPECT_EQ(ui().Questions().back(),
            "You still have some recruiting points left, are you sure you wish to sim games and "
            "advance to the next week?");
  const RecruitRow row = Row(ids[0]);
  EXPECT_EQ(row.WeekDecision, "none");
  EXPECT_EQ(row.WeekBid, 0);
  EXPECT_EQ(row.RecruitPoints, 10);
  // Set, not added to: the new week's budget alone.
  int expected = 0;
  WeeklyRecruitPoints(session(), kUserSchool, RecruitingPeriod::kContact, expected);
  EXPECT_EQ(PointsAvail(), std::max(expected, 10));
}

TEST_F(RecruitingSeason, NoToThePointsQuestionStopsTheStep) {
  SimTo(2, "Saturday");
  ASSERT_GT(PointsAvail(), 0);
  const std::string before = DumpStore(store());
  ui().QueueAnswer(false);
  EXPECT_EQ(SimDay(run()), DayOutcome::kStopped);
  EXPECT_TRUE(DumpStore(store()) == before);
}

TEST_F(RecruitingSeason, WeekSixOfARunningGameHasNoPeriodUnlikeAfterALoad) {
  GoTo(5, "Saturday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrWeek, 6);
  EXPECT_EQ(Period(), RecruitingPeriod::kNone);
  EXPECT_EQ(PointsAvail(), 10);
  EXPECT_EQ(run().caption, "Courtmere (Contact Period)");
  // After a load the same week is a Contact week, with the same 10 points.
  SeasonRecruiting loaded;
  EXPECT_EQ(loaded.Period(config()), RecruitingPeriod::kContact);
}

TEST_F(RecruitingSeason, ThePoolsUpdatesAndTheDraftsPicks) {
  const int id = PoolRecruits(1)[0];
  store().Exec("UPDATE Player SET PlayerYear = 'Recruit' WHERE Id = ?", id);
  const std::string report =
      *store().ScalarText("SELECT ScoutingReport FROM Recruit WHERE Id = ?", id);
  UpdateRecruitStats(session(), 2);
  const std::string updated =
      *store().ScalarText("SELECT ScoutingReport FROM Recruit WHERE Id = ?", id);
  EXPECT_EQ(updated.substr(0, report.size() + 1), report + " ");
  EXPECT_GT(updated.size(), report.size() + 1);

  EXPECT_TRUE(GoesToDraft("Exc", 1.9, 68, 69));
  EXPECT_FALSE(GoesToDraft("Exc", 1.9, 68, 70));
  EXPECT_FALSE(GoesToDraft("Exc", 2.0, 71, 1));  // 68 to 71 with the grades stays
  EXPECT_TRUE(GoesToDraft("Exc", 2.0, 72, 39));
  EXPECT_FALSE(GoesToDraft("Exc", 2.0, 72, 40));
  EXPECT_FALSE(GoesToDraft("Good", 1.0, 99, 1));

  store().Exec(
      "UPDATE Player SET Overall = 90 WHERE Id IN (SELECT Id FROM Recruit WHERE RecruitType = "
      "'Exc')");
  store().Exec("UPDATE Recruit SET GPA = 1.0 WHERE RecruitType = 'Exc'");
  DeclareNBARecruits(session());
  const int64_t going = *store().ScalarInt(
      "SELECT count(*) FROM Recruit, Player WHERE Recruit.Id = Player.Id AND NBAFlag = 1 AND "
      "InEligible = 1 AND TeamChoice = 'NBA'");
  const int64_t excellent =
      *store().ScalarInt("SELECT count(*) FROM Recruit WHERE RecruitType = 'Exc'");
  EXPECT_GT(going, 0);
  EXPECT_LT(going, excellent);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Recruit WHERE TeamChoice = 'NBA' AND "
                               "RecruitType <> 'Exc'"),
            0);
}

}  // namespace
}  // namespace courtmere::testing
