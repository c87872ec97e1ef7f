// The computer's recruiting rules that need no store: the need by position,
// the nine passes of the target list, the weekly plan and its bids.
#include <gtest/gtest.h>

#include "recruiting/target_lists.h"
#include "recruiting/week_plan.h"

namespace courtmere {
namespace {

TEST(ComputerRecruiting, NeedCountsTheStrongerPositionsAndTiesShareANumber) {
  //                 PG  SG  SF  PF  C
  const auto need = PositionNeed({0, 80, 70, 70, 60, 90});
  EXPECT_EQ(need[5], 1);
  EXPECT_EQ(need[1], 2);
  EXPECT_EQ(need[2], 3);
  EXPECT_EQ(need[3], 3);
  EXPECT_EQ(need[4], 5);
}

TargetRecruit Recruit(int id, int position, const char* type, const char* t1, const char* t2 = "",
                      const char* t3 = "", const char* area = "A", const char* region = "East") {
  return {id, position, region, type, area, t1, t2, t3};
}

TEST(ComputerRecruiting, TargetsComeInTheOrderOfTheNinePasses) {
  TargetSchool s{"Iona", "East", "NY", {0, 80, 80, 60, 60, 60}};
  // Need: PG 1, SG 1, SF 3, PF 3, C 3 (a need above 3 never happens here,
  // so the passes by area and region take nobody).
  const std::vector<TargetRecruit> pool = {
      Recruit(1, 3, "Average", "Iona"),                  // pass 2: Team1, Average, need 3
      Recruit(2, 1, "Exc", "Duke", "Iona"),              // pass 3
      Recruit(3, 1, "Exc", "Duke", "Kansas", "Iona"),    // an Exc man's Team3: never
      Recruit(4, 1, "Good", "Iona"),                     // pass 1
      Recruit(5, 2, "Average", "Duke", "Iona"),          // pass 6: need 1
      Recruit(6, 4, "Good", "Duke", "UCLA", "Iona"),     // pass 5
      Recruit(7, 1, "Average", "Duke", "UCLA", "Iona"),  // pass 7
      Recruit(8, 3, "Poor", "Iona"),                     // Poor: never
      Recruit(9, 3, "Good", "Duke", "", "", "NY"),       // need 3 is not above 3
  };
  EXPECT_EQ(PickTargets(s, pool), (std::vector<int>{4, 1, 2, 6, 5, 7}));

  // A weak centre position (need 5) opens the passes by area, then region.
  s.top = {0, 90, 90, 90, 90, 10};
  const std::vector<TargetRecruit> others = {
      Recruit(20, 5, "Good", "Duke", "", "", "CA", "East"),     // pass 9: region, other area
      Recruit(21, 5, "Average", "Duke", "", "", "NY", "West"),  // pass 8: same area
      Recruit(22, 5, "Exc", "Duke", "", "", "NY", "East"),      // Exc: only his schools
      Recruit(23, 5, "Good", "Duke", "", "", "TX", "South"),    // neither
  };
  EXPECT_EQ(PickTargets(s, others), (std::vector<int>{21, 20}));

  // The list stops at nine.
  std::vector<TargetRecruit> many;
  for (int i = 1; i <= 12; ++i) many.push_back(Recruit(i, 1, "Good", "Iona"));
  EXPECT_EQ(PickTargets(s, many).size(), 9u);
}

TEST(ComputerRecruiting, ThePlanFollowsTheWeekAndTheScholarships) {
  using A = std::array<std::string, 5>;
  EXPECT_EQ(PlannedActions(2, 5), (A{"Call", "Assistant", "Assistant", "Visit", "CampusVisit"}));
  EXPECT_EQ(PlannedActions(2, 4), (A{"Call", "Assistant", "Assistant", "Visit", "Call"}));
  EXPECT_EQ(PlannedActions(2, 3), (A{"Call", "Assistant", "Assistant", "Call", "Call"}));
  EXPECT_EQ(PlannedActions(9, 1), (A{"Visit", "Call", "Call", "Assistant", "Assistant"}));
  EXPECT_EQ(PlannedActions(12, 3), (A{"Call", "Assistant", "CampusVisit", "Call", "Call"}));
  for (int week : {4, 5, 11}) EXPECT_EQ(PlannedActions(week, 5)[2], "Call");
}

TEST(ComputerRecruiting, BidsFallToTheNextRuleAndKeepTheActionsName) {
  struct Case {
    const char* action;
    int points, bid;
    const char* after;
  };
  const Case cases[] = {
      {"CampusVisit", 100, 40, "CampusVisit"},
      {"CampusVisit", 35, 35, "CampusVisit"},
      {"CampusVisit", 25, 25, "CampusVisit"},
      {"CampusVisit", 15, 15, "CampusVisit"},
      {"Visit", 31, 30, "Visit"},
      {"Visit", 21, 21, "Visit"},
      {"Assistant", 21, 20, "Assistant"},
      {"Assistant", 11, 11, "Assistant"},
      {"Assistant", 10, 10, "Assistant"},
      {"Visit", 9, 9, "Call"},
      {"Call", 50, 10, "Call"},
      {"Call", 0, 0, "Call"},
      {"CampusVisit", -30, -30, "Call"},
  };
  for (const Case& c : cases) {
    std::string action = c.action;
    EXPECT_EQ(PlannedBid(action, c.points), c.bid) << c.action << " " << c.points;
    EXPECT_EQ(action, c.after) << c.action << " " << c.points;
  }
}

}  // namespace
}  // namespace courtmere
