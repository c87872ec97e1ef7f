// The weekly budget: the period's base less the payroll plus each term of
// the bonus, no change outside a budget period, and the user's floor of 10
// with PointsAvail set, not added to.
#include "recruiting/recruit_points.h"

#include <gtest/gtest.h>

#include "recruiting_fixture.h"

namespace courtmere::testing {
namespace {

class RecruitPoints : public RecruitingFixture {
 protected:
  void SetUp() override {
    // Week 4 looks back at week 3 (and week 2 at week 1); a clean slate for
    // the bonus's terms.
    GoTo(4, "Thursday");
    store().Exec("UPDATE Player SET NBAFlag = 0, Suspended = 0 WHERE Team = ?", kUserSchool);
    store().Exec("DELETE FROM AwardWinners");
    for (const std::string& table :
         {session().humanScheduleTable, std::string("NonConfSchedule")}) {
      store().Exec("UPDATE " + table +
                       " SET Week = 99 WHERE Week IN (1, 3) AND (HomeTeam = ? OR AwayTeam = ?)",
                   kUserSchool, kUserSchool);
    }
  }
  int Budget(RecruitingPeriod period, int start = -1000) {
    int points = start;
    WeeklyRecruitPoints(session(), kUserSchool, period, points);
    return points;
  }
  // A game of week 3 in the user's conference table.
  void AddGame(const std::string& home, const std::string& away, int homeScore, int awayScore) {
    store().Exec("INSERT INTO " + session().humanScheduleTable +
                     " (GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeScore, AwayScore) VALUES "
                     "(9999, 3, 'Saturday', ?, ?, ?, ?)",
                 home, away, homeScore, awayScore);
  }
  std::vector<int> Men() {
    std::vector<int> ids;
    for (Rows r = store().Query("SELECT Id FROM Player WHERE Team = ? ORDER BY Id", kUserSchool);
         r.Next();) {
      ids.push_back(r.Int(0));
    }
    return ids;
  }
};

TEST_F(RecruitPoints, TheBudgetIsTheBaseLessThePayrollPlusTheBonus) {
  const int payroll = RecruitingPayroll(store(), kUserSchool);
  ASSERT_GT(payroll, 0);
  EXPECT_EQ(Budget(RecruitingPeriod::kContact), 210 - payroll);
  EXPECT_EQ(Budget(RecruitingPeriod::kEvaluation), 170 - payroll);
  EXPECT_EQ(Budget(RecruitingPeriod::kQuiet), 140 - payroll);
  // No budget in the other periods: the value stays as it was.
  EXPECT_EQ(Budget(RecruitingPeriod::kDead, 7), 7);
  EXPECT_EQ(Budget(RecruitingPeriod::kNone, -3), -3);

  AddGame(kUserSchool, "Elsewhere", 70, 60);  // a home win
  AddGame("Elsewhere", kUserSchool, 80, 60);  // an away loss
  AddGame("Elsewhere", kUserSchool, 50, 60);  // an away win
  EXPECT_EQ(PerformanceBonus(session(), kUserSchool), 10 - 10 + 10);
  store().Exec("DELETE FROM " + session().humanScheduleTable + " WHERE GameNo = 9999");

  const std::vector<int> men = Men();
  store().Exec(
      "INSERT INTO AwardWinners (Type, WeekNo, PlayerId) VALUES ('Player of the Week', 3, ?)",
      men[0]);
  EXPECT_EQ(PerformanceBonus(session(), kUserSchool), 15);
  store().Exec("UPDATE Player SET NBAFlag = 1, PlayerYear = 'Junior' WHERE Id = ?", men[1]);
  store().Exec("UPDATE Player SET NBAFlag = 1, PlayerYear = 'Senior' WHERE Id = ?", men[2]);
  store().Exec("UPDATE Player SET Suspended = 1 WHERE Id IN (?, ?)", men[3], men[4]);
  EXPECT_EQ(PerformanceBonus(session(), kUserSchool), 15 + 5 - 10);
  // The men bound for the NBA count only from week 3.
  GoTo(2, "Thursday");
  EXPECT_EQ(PerformanceBonus(session(), kUserSchool), -10);
}

TEST_F(RecruitPoints, TheUsersPointsAreSetWithAFloorOfTen) {
  ListRecruits(1);
  store().Exec("UPDATE RecruitDecision SET WeekDecision = 'Call'");
  SetPoints(55);
  SetUserWeeklyPoints(session(), RecruitingPeriod::kContact);
  EXPECT_EQ(PointsAvail(), 210 - RecruitingPayroll(store(), kUserSchool));
  EXPECT_EQ(*store().ScalarText("SELECT WeekDecision FROM RecruitDecision"), "none");
  SetUserWeeklyPoints(session(), RecruitingPeriod::kDead);
  EXPECT_EQ(PointsAvail(), 10);
  // A payroll above the base falls to the floor too.
  store().Exec("UPDATE Coach SET Salary = 100 WHERE Team = ?", kUserSchool);
  SetUserWeeklyPoints(session(), RecruitingPeriod::kQuiet);
  EXPECT_EQ(PointsAvail(), 10);
}

}  // namespace
}  // namespace courtmere::testing
