// The recruiting screens' data and their side of each operation: the
// board's columns by week, the bid list, the period's actions, the
// questions (No writes nothing), and the pool's lists.
#include <gtest/gtest.h>

#include "recruiting/recruit_decision.h"
#include "recruiting_fixture.h"
#include "screens/recruit_actions.h"
#include "screens/recruit_board.h"
#include "screens/recruit_card.h"
#include "screens/recruit_lists.h"

namespace courtmere::testing {
namespace {

class RecruitScreens : public RecruitingFixture {
 protected:
  void SetUp() override {
    GoTo(3, "Thursday");
    SetPoints(100);
    SetScholarships(2);
  }
};

TEST_F(RecruitScreens, TheBoardShowsTheListInRankOrder) {
  const std::vector<int> ids = ListRecruits(3);
  ASSERT_TRUE(RecordRecruitDecision(session(), "Visit", ids[1], 30).Done);
  store().Exec("UPDATE RecruitDecision SET RecruitNo = 1 WHERE PlayerID = ?", ids[2]);
  store().Exec("UPDATE Player SET NBAFlag = 1 WHERE Id = ?", ids[0]);
  RecruitBoard board = LoadRecruitBoard(session(), RecruitingPeriod::kContact);
  EXPECT_EQ(board.Title, "St. John's Recruits");
  EXPECT_EQ(board.PeriodText, "Contact Period");
  EXPECT_EQ(board.PointsAvail, 70);
  EXPECT_EQ(board.Allowance, 2);
  ASSERT_EQ(board.Rows.size(), 3u);
  EXPECT_EQ(board.Rows[0].PlayerID, ids[2]);
  EXPECT_EQ(board.Rows[1].Colour, RecruitRowColour::kBlue);
  EXPECT_EQ(board.Rows[2].Decision, "Visit");
  EXPECT_EQ(board.Rows[2].Points, 30);
  EXPECT_EQ(board.Rows[2].TopBid, "NA");
  EXPECT_EQ(board.TopBidHeading, "Top Bid");
  // Later weeks: the estimate, no points from week 14, "Choice" after 17.
  store().Exec("UPDATE RecruitDecision SET TopBid = 123");
  GoTo(14, "Thursday");
  board = LoadRecruitBoard(session(), RecruitingPeriod::kDead);
  EXPECT_EQ(board.Rows[2].TopBid, "123");
  EXPECT_EQ(board.PointsAvail, 0);
  EXPECT_TRUE(board.Actions.empty());
  store().Exec("UPDATE Recruit SET TeamChoice = 'Duke' WHERE Id = ?", ids[1]);
  GoTo(18, "Monday");
  board = LoadRecruitBoard(session(), RecruitingPeriod::kEndOfSeason);
  EXPECT_EQ(board.TopBidHeading, "Choice");
  EXPECT_EQ(board.Rows[2].TopBid, "Duke");
  EXPECT_FALSE(board.ScholarshipsOpen);
}

TEST_F(RecruitScreens, TheScreensOwnRefusalsComeBeforeTheOperation) {
  const std::vector<int> ids = ListRecruits(1);
  const int stranger = PoolRecruits(2)[1];
  EXPECT_EQ(BidOnRecruit(session(), RecruitingPeriod::kContact, stranger, "Call", 5).Message,
            "That recruit is not on your list of recruits.");
  EXPECT_FALSE(BidOnRecruit(session(), RecruitingPeriod::kQuiet, ids[0], "Visit", 5).Done);
  EXPECT_FALSE(BidOnRecruit(session(), RecruitingPeriod::kContact, ids[0], "Visit", 31).Done);
  EXPECT_FALSE(BidOnRecruit(session(), RecruitingPeriod::kContact, ids[0], "Call", -1).Done);
  SetPoints(0);
  EXPECT_EQ(BidOnRecruit(session(), RecruitingPeriod::kContact, ids[0], "Call", 0).Message,
            kNoPointsLeft);
  EXPECT_EQ(BidChoicesFor("Visit", 100).Selected, 30);
  EXPECT_EQ(BidChoicesFor("Visit", 12).Selected, 12);
  EXPECT_EQ(BidChoicesFor("CampusVisit", 12).Highest, 40);
  // A No leaves everything as it was.
  const std::string before = DumpStore(store());
  ui().QueueAnswer(false);
  const RecruitReply no = AskAddRecruit(session(), stranger);
  EXPECT_FALSE(no.Done);
  EXPECT_TRUE(no.Message.empty());
  ui().QueueAnswer(false);
  EXPECT_FALSE(AskRemoveRecruit(session(), ids[0]).Done);
  ui().QueueAnswer(false);
  EXPECT_FALSE(AskOfferScholarship(session(), ids[0]).Done);
  EXPECT_TRUE(DumpStore(store()) == before);
  const std::string name = *store().ScalarText("SELECT Name FROM Player WHERE Id = ?", stranger);
  EXPECT_EQ(ui().Questions()[0], "Do you wish to add " + name + " to your list of recruits?");
  // No scholarship moves after week 15.
  GoTo(16, "Thursday");
  EXPECT_FALSE(AskOfferScholarship(session(), ids[0]).Done);
  EXPECT_EQ(ui().Questions().size(), 3u);
}

TEST_F(RecruitScreens, ThePoolsListsAndTheCard) {
  const RecruitList east = RegionRecruits(session(), "East");
  ASSERT_FALSE(east.Rows.empty());
  EXPECT_EQ(east.Title, "East Region Recruits");
  const RecruitList top = Top50Recruits(session());
  ASSERT_EQ(top.Rows.size(), 50u);
  for (size_t i = 0; i < top.Rows.size(); ++i) EXPECT_EQ(top.Rows[i].Top50Rank, int(i) + 1);
  const RecruitList guards = PositionRecruits(session(), 1);
  EXPECT_EQ(guards.Title, "Point Guard Recruits in the Nation");
  ASSERT_EQ(guards.Rows.size(), 15u);
  for (const RecruitListRow& r : guards.Rows) EXPECT_EQ(r.Pos, "PG");
  for (int slot = 1; slot <= 3; ++slot) {
    const RecruitList mine = InterestedRecruits(session(), slot);
    EXPECT_EQ(mine.Title, "Recruits Listing St. John's As Team" + std::to_string(slot));
    for (const RecruitListRow& r : mine.Rows) {
      EXPECT_NE(r.Schools.find("St. John's"), std::string::npos);
    }
  }
  const std::optional<RecruitCard> card = LoadRecruitCard(session(), top.Rows[0].Id);
  ASSERT_TRUE(card.has_value());
  EXPECT_EQ(card->Top50Rank, "No. 1 Overall");
  EXPECT_EQ(card->Schools.size(), 3u);
  EXPECT_EQ(card->Grades.size(), 10u);
  ASSERT_FALSE(card->ScoutingReport.empty());
  EXPECT_NE(card->ScoutingReport.front(), ' ') << "the report reads from its first word";
  EXPECT_FALSE(LoadRecruitCard(session(), -1).has_value());
}

}  // namespace
}  // namespace courtmere::testing
