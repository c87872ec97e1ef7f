// The recruiting periods: the calendar's table after a load, the periods a
// running game sets at the ends of weeks, where the two differ, and what
// each period offers.
#include "recruiting/recruiting_period.h"

#include <gtest/gtest.h>

#include "store/config.h"

namespace courtmere {
namespace {

Config Week(int week, const char* stage = kStageSeason) {
  Config c;
  c.CurrWeek = week;
  c.Stage = stage;
  return c;
}

TEST(RecruitingPeriod, AfterALoadThePeriodFollowsTheWeekAndTheStage) {
  const char* expected[] = {"",           "Dead",     "Contact",       "Contact",
                            "Quiet",      "Quiet",    "Contact",       "Evaluation",
                            "Evaluation", "Contact",  "Evaluation",    "Quiet",
                            "Contact",    "Signing",  "Signing",       "Signing",
                            "Signing",    "Signing",  "End of Season", "End of Season",
                            "OffSeason",  "OffSeason"};
  for (int week = 1; week <= 21; ++week) {
    EXPECT_EQ(PeriodName(PeriodAfterLoad(Week(week))), expected[week]) << "week " << week;
  }
  EXPECT_EQ(PeriodAfterLoad(Week(21, kStageEndSeason)), RecruitingPeriod::kEndOfSeason);
  EXPECT_EQ(PeriodAfterLoad(Week(21, kStagePostTraining)), RecruitingPeriod::kOffSeason);
  EXPECT_EQ(PeriodCaption(RecruitingPeriod::kContact), "Courtmere (Contact Period)");
  EXPECT_EQ(PeriodCaption(RecruitingPeriod::kEndOfSeason), "Courtmere (End of Season)");
  EXPECT_EQ(PeriodCaption(RecruitingPeriod::kOffSeason), "Courtmere (OffSeason Period)");
}

// The periods of a running game, week by week from the season's start.
TEST(RecruitingPeriod, ARunningGameHoldsWhatTheEndsOfWeeksSet) {
  const char* expected[] = {"",           "Dead",    "Contact",    "Contact",    "Quiet",
                            "Quiet",      "",        "Evaluation", "Evaluation", "Contact",
                            "Evaluation", "Quiet",   "Contact",    "Dead",       "Dead",
                            "Dead",       "Signing", "Signing"};
  PeriodClock clock;
  for (int week = 1; week <= 17; ++week) {
    EXPECT_EQ(PeriodName(clock.Current(Week(week))), expected[week]) << "week " << week;
    clock.WeekEnded(week);
  }
  // Week 6 after a load is a Contact week; in a running game it has none.
  PeriodClock running;
  for (int week = 1; week <= 5; ++week) running.WeekEnded(week);
  EXPECT_EQ(running.Current(Week(6)), RecruitingPeriod::kNone);
  EXPECT_TRUE(ActionsOffered(running.Current(Week(6))).empty());
  EXPECT_EQ(PeriodClock().Current(Week(6)), RecruitingPeriod::kContact);
  // A new season starts from the calendar again.
  running.WeekEnded(15);
  EXPECT_EQ(running.Current(Week(1)), RecruitingPeriod::kDead);
}

TEST(RecruitingPeriod, ActionsBasesAndCeilings) {
  using V = std::vector<std::string>;
  EXPECT_EQ(ActionsOffered(RecruitingPeriod::kQuiet), V{"Call"});
  EXPECT_EQ(ActionsOffered(RecruitingPeriod::kEvaluation), (V{"Call", "Assistant", "Visit"}));
  EXPECT_EQ(ActionsOffered(RecruitingPeriod::kContact),
            (V{"Call", "Assistant", "Visit", "CampusVisit"}));
  for (RecruitingPeriod p : {RecruitingPeriod::kDead, RecruitingPeriod::kSigning,
                             RecruitingPeriod::kNone, RecruitingPeriod::kOffSeason}) {
    EXPECT_TRUE(ActionsOffered(p).empty());
    EXPECT_FALSE(PeriodBase(p).has_value());
  }
  EXPECT_EQ(PeriodBase(RecruitingPeriod::kContact), 210);
  EXPECT_EQ(PeriodBase(RecruitingPeriod::kEvaluation), 170);
  EXPECT_EQ(PeriodBase(RecruitingPeriod::kQuiet), 140);
  EXPECT_EQ(BidCeiling("Call"), 10);
  EXPECT_EQ(BidCeiling("Assistant"), 20);
  EXPECT_EQ(BidCeiling("Visit"), 30);
  EXPECT_EQ(BidCeiling("CampusVisit"), 40);
  EXPECT_EQ(BidCeiling("none"), 0);
}

}  // namespace
}  // namespace courtmere
