// The user's operations on his list: adding and removing, each refusal of
// a week's decision in its order with nothing written, clearing, the
// scholarships and the ranking.
#include "recruiting/recruit_decision.h"

#include <gtest/gtest.h>

#include "recruiting/recruit_ranking.h"
#include "recruiting/scholarships.h"
#include "recruiting_fixture.h"

namespace courtmere::testing {
namespace {

constexpr const char* kAlreadyDecided =
    "You have already made your decision on this recruit this week.";
constexpr const char* kNotEnough = "You don't have enough recruiting points left to make that bid.";

class RecruitDecisions : public RecruitingFixture {
 protected:
  void SetUp() override {
    GoTo(3, "Thursday");
    SetPoints(200);
    SetScholarships(3);
  }
  // A refusal with this text that leaves the store as it was.
  void ExpectRefused(const std::string& action, int id, int bid, const std::string& text) {
    const std::string before = DumpStore(store());
    const RecruitReply reply = RecordRecruitDecision(session(), action, id, bid);
    EXPECT_FALSE(reply.Done) << action;
    EXPECT_EQ(reply.Message, text);
    EXPECT_TRUE(DumpStore(store()) == before) << action << " wrote on a refusal";
  }
  void Decide(const std::string& action, int id, int bid) {
    ASSERT_TRUE(RecordRecruitDecision(session(), action, id, bid).Done) << action << " " << id;
  }
  // A new week: the decisions of this one stand no more.
  void NextWeek() { store().Exec("UPDATE RecruitDecision SET WeekDecision = 'none'"); }
};

TEST_F(RecruitDecisions, AListHoldsFiveDifferentRecruits) {
  const std::vector<int> ids = PoolRecruits(6);
  for (int i = 0; i < 5; ++i) {
    const RecruitReply reply = AddRecruit(session(), ids[i], "Al Smith");
    EXPECT_TRUE(reply.Done);
    EXPECT_EQ(reply.Message, "Al Smith has been added to your list of recruits.");
  }
  EXPECT_EQ(AddRecruit(session(), ids[0], "Al Smith").Message,
            "Al Smith has already been added to your list of recruits. Please choose another "
            "recruit.");
  EXPECT_EQ(AddRecruit(session(), ids[5], "Al Smith").Message,
            "You have already chosen the maximum of five recruits this season. You may not chose "
            "another.");
  EXPECT_EQ(UserRecruitRows(session()).size(), 5u);
  // A removed recruit's points are lost; one added in his place starts at 0.
  Decide("Visit", ids[0], 30);
  RemoveRecruit(session(), ids[0]);
  EXPECT_EQ(PointsAvail(), 170);
  ASSERT_TRUE(AddRecruit(session(), ids[5], "x").Done);
  EXPECT_EQ(Row(ids[5]).RecruitPoints, 0);
  EXPECT_EQ(Row(ids[5]).WeekDecision, "none");
}

TEST_F(RecruitDecisions, TheRecruitsOwnLimitsComeFirst) {
  const std::vector<int> ids = ListRecruits(2);
  const int a = ids[0];
  // A bid of 0 is a decision: it spends the week's action and counts.
  Decide("Call", a, 0);
  EXPECT_EQ(Row(a).Call, 1);
  EXPECT_EQ(TeamTotal("Calls"), 1);
  EXPECT_EQ(PointsAvail(), 200);
  ExpectRefused("Call", a, 5, kAlreadyDecided);
  NextWeek();
  Decide("CampusVisit", a, 40);
  NextWeek();
  ExpectRefused("CampusVisit", a, 10, "You have already setup a campus visit for this recruit.");
  Decide("Visit", a, 30);
  NextWeek();
  Decide("Visit", a, 30);
  NextWeek();
  ExpectRefused("Visit", a, 10,
                "You have already used the allotted number of home visits for this recruit.");
  for (int i = 0; i < 3; ++i) {
    Decide("Assistant", a, 0);
    NextWeek();
  }
  ExpectRefused("Assistant", a, 0,
                "You have already used the allotted number of visits by an assistant coach for "
                "this recruit.");
  // His own refusal comes before the points' one.
  SetPoints(0);
  ExpectRefused("Assistant", a, 50,
                "You have already used the allotted number of visits by an assistant coach for "
                "this recruit.");
}

TEST_F(RecruitDecisions, AWeekAllowsOneVisitOneCampusVisitAndTwoAssistants) {
  const std::vector<int> ids = ListRecruits(5);
  Decide("Visit", ids[0], 30);
  ExpectRefused("Visit", ids[1], 30,
                "You have already made the decision to use your allotted number of Player Visits "
                "this week. Make another selection.");
  Decide("CampusVisit", ids[1], 40);
  ExpectRefused("CampusVisit", ids[2], 40,
                "You have already made the decision to use your allotted number of Campus Visits "
                "this week. Make another selection.");
  Decide("Assistant", ids[2], 20);
  Decide("Assistant", ids[3], 20);
  ExpectRefused("Assistant", ids[4], 0,
                "You have already made the decision to use your allotted number of Assistant "
                "Coach Visits this week. Make another selection.");
  Decide("Call", ids[4], 10);
  EXPECT_EQ(PointsAvail(), 200 - 30 - 40 - 20 - 20 - 10);
}

TEST_F(RecruitDecisions, TheSeasonsLimitsFollowTheScholarshipsThenThePoints) {
  const std::vector<int> ids = ListRecruits(2);
  SetScholarships(0);
  ExpectRefused("CampusVisit", ids[0], 0,
                "You have already used all your campus visits for this recruiting season.");
  ExpectRefused("Visit", ids[0], 0,
                "You have already used all your head coach visits for this recruiting season.");
  SetScholarships(1);
  Decide("Visit", ids[0], 30);
  NextWeek();
  Decide("Visit", ids[1], 30);
  NextWeek();
  ExpectRefused("Visit", ids[0], 0,
                "You have already used all your head coach visits for this recruiting season.");
  SetPoints(9);
  ExpectRefused("Call", ids[0], 10, kNotEnough);
  ExpectRefused("Call", PoolRecruits(3)[2], 0, kNotEnough);  // not on the list
  Decide("Call", ids[0], 9);
  EXPECT_EQ(PointsAvail(), 0);
}

TEST_F(RecruitDecisions, ClearingGivesBackExactlyTheWeeksBid) {
  const std::vector<int> ids = ListRecruits(3);
  const RecruitRow before = Row(ids[0]);
  Decide("Visit", ids[0], 25);
  Decide("Call", ids[1], 10);
  Decide("Assistant", ids[2], 20);
  ASSERT_TRUE(ClearRecruitDecision(session(), ids[0]).Done);
  EXPECT_EQ(PointsAvail(), 200 - 10 - 20);
  const RecruitRow after = Row(ids[0]);
  EXPECT_EQ(after.Visit, before.Visit);
  EXPECT_EQ(after.RecruitPoints, before.RecruitPoints);
  EXPECT_EQ(after.WeekDecision, "none");
  EXPECT_EQ(after.WeekBid, 0);
  EXPECT_EQ(TeamTotal("Visits"), 0);
  // The cleared week's action is free again; nothing stands to clear twice.
  Decide("Visit", ids[0], 30);
  ASSERT_TRUE(ClearRecruitDecision(session(), ids[0]).Done);
  EXPECT_FALSE(ClearRecruitDecision(session(), ids[0]).Done);
}

TEST_F(RecruitDecisions, ScholarshipsAreBoundedByTheAllowance) {
  const std::vector<int> ids = ListRecruits(3);
  SetScholarships(2);
  EXPECT_EQ(ScholarshipAllowance(session(), SeniorCount::kOffer), 2);
  EXPECT_TRUE(OfferScholarship(session(), ids[0]).Done);
  EXPECT_TRUE(OfferScholarship(session(), ids[1]).Done);
  EXPECT_EQ(OfferScholarship(session(), ids[2]).Message,
            "You have already used your allotted number of scholarships. You cannot offer any "
            "more this season.");
  RescindScholarship(session(), ids[0]);
  EXPECT_TRUE(OfferScholarship(session(), ids[2]).Done);
  EXPECT_EQ(ScholarshipsOffered(session()), 2);
  // Before week 3 the allowance comes from the roster: the seniors, plus 13,
  // less the players, at most 5.
  GoTo(2, "Thursday");
  const auto count = [&](const char* where) {
    return static_cast<int>(*store().ScalarInt(
        std::string("SELECT count(*) FROM Player WHERE Team = ?") + where, kUserSchool));
  };
  const int players = count("");
  const int seniors = count(" AND PlayerYear = 'Senior'");
  const int playing = count(" AND PlayerYear = 'Senior' AND Redshirt <> 1");
  EXPECT_EQ(ScholarshipAllowance(session(), SeniorCount::kOffer),
            std::min(seniors + 13 - players, 5));
  EXPECT_EQ(ScholarshipAllowance(session(), SeniorCount::kScreen),
            std::min(playing + 13 - players, 5));
}

TEST_F(RecruitDecisions, RanksAreOneToFiveAndDifferent) {
  const std::vector<int> ids = ListRecruits(5);
  EXPECT_TRUE(RankRecruits(session(), {{ids[0], 1}, {ids[1], 2}}).Done);
  EXPECT_EQ(RankRecruits(session(), {{ids[2], 2}}).Message,
            "Please use a different ranking for each player.");
  EXPECT_FALSE(RankRecruits(session(), {{ids[2], 6}}).Done);
  EXPECT_EQ(Row(ids[2]).RecruitNo, 0);
  // Swapping two ranks at once is one ranking.
  EXPECT_TRUE(RankRecruits(session(), {{ids[0], 2}, {ids[1], 1}}).Done);
  EXPECT_TRUE(RanksMissing(session()));
  EXPECT_TRUE(RankRecruits(session(), {{ids[2], 3}, {ids[3], 4}, {ids[4], 5}}).Done);
  EXPECT_FALSE(RanksMissing(session()));
}

}  // namespace
}  // namespace courtmere::testing
