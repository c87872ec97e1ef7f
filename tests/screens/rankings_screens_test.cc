// What the poll, rating index and award screens show: the points and votes
// the poll screen derives from the stored scores, the records of both kinds
// of school, and the award lists under their headings.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "people/league_fixture.h"
#include "screens/award_lists.h"
#include "screens/cri_list.h"
#include "screens/top25.h"

namespace courtmere {
namespace {

using testing::LeagueFixture;

class RankingScreensTest : public ::testing::Test {
 protected:
  RankingScreensTest() {
    league_.AddTeam("St. John's", "East", 60, "Human");
    league_.AddTeam("Duke", "East", 80);
    store().Append(
        "TeamStats",
        {{"SchoolName", "St. John's"}, {"TotalWins", int64_t{9}}, {"TotalLosses", int64_t{4}}});
    store().Append("TeamStats", {{"SchoolName", "Duke"}, {"TotalWins", int64_t{12}}});
    league_.AddScrubTeam("Hofstra", 40);
    store().Exec("UPDATE ScrubTeam SET Wins = 3, Losses = 5 WHERE SchoolName = 'Hofstra'");
  }
  Store& store() { return league_.store(); }
  void Ranked(const std::string& school, int rank, double points, int previous = 0) {
    store().Append("Ranking", {{"SchoolName", school},
                               {"TeamRanking", int64_t{rank}},
                               {"Previous", int64_t{previous}},
                               {"TeamPoints", points}});
  }
  LeagueFixture league_;
};

TEST_F(RankingScreensTest, PollPointsAreTheScoreTimesTheFactorOfTheRank) {
  EXPECT_EQ(Top25Points(1, 100), 340);
  EXPECT_EQ(Top25Points(5, 100), 300);
  EXPECT_EQ(Top25Points(13, 100), 160);
  EXPECT_EQ(Top25Points(25, 100), 40);
  EXPECT_EQ(Top25Points(19, 12.5), 12);  // a half rounds to even
  EXPECT_EQ(Top25Points(10, 1.75), 4);
  EXPECT_EQ(Top25Points(26, 100), 0);
  EXPECT_EQ(VotesBelowTop25(26, 100), 35);
  EXPECT_EQ(VotesBelowTop25(27, 100), 32);
  EXPECT_EQ(VotesBelowTop25(35, 100), 8);
  EXPECT_EQ(VotesBelowTop25(36, 100), 0);
}

TEST_F(RankingScreensTest, TheTop25ShowsRecordsOfBothKindsAndNamesTheNextSchoolsWithVotes) {
  Ranked("Duke", 1, 250, 3);
  Ranked("Hofstra", 2, 240);
  Ranked("St. John's", 3, 230, 1);
  for (int rank = 4; rank <= 40; ++rank) Ranked(fmt::format("School {}", rank), rank, 100);
  Ranked("Unranked U", 0, 500);  // added since the last poll
  const Top25 poll = ShowTop25(store(), "St. John's");
  EXPECT_EQ(poll.Title, "TOP 25 Media Poll");
  ASSERT_EQ(poll.Rows.size(), 25u);
  EXPECT_EQ(poll.Rows[0].Team, "Duke");
  EXPECT_EQ(poll.Rows[0].Record, "12-0");
  EXPECT_EQ(poll.Rows[0].Points, 850);
  EXPECT_EQ(poll.Rows[0].Previous, 3);
  EXPECT_EQ(poll.Rows[1].Record, "3-5");
  EXPECT_EQ(poll.Rows[2].Record, "9-4");
  EXPECT_TRUE(poll.Rows[2].User);
  EXPECT_FALSE(poll.Rows[0].User);
  EXPECT_EQ(poll.Rows[24].Team, "School 25");
  EXPECT_EQ(poll.Rows[24].Record, "0-0");  // in neither table
  EXPECT_EQ(poll.Votes,
            "School 26 35, School 27 32, School 28 29, School 29 26, School 30 23, School 31 20, "
            "School 32 17, School 33 14, School 34 11, School 35 8");

  store().Exec("DELETE FROM Ranking");
  EXPECT_TRUE(ShowTop25(store(), "St. John's").Rows.empty());
}

TEST_F(RankingScreensTest, TheIndexListsEverySchoolInItsOrder) {
  store().Exec(
      "INSERT INTO CRIRank (CRIRank, SchoolName, CRIValue, WinPer, SchedStrength, SchedRank) "
      "VALUES (2, 'Hofstra', 0.4, 0.375, 0.5, 1), (1, 'St. John''s', 0.5625, 0.692, 0.45, 2)");
  const CriList list = ShowCRI(store(), "St. John's");
  ASSERT_EQ(list.Rows.size(), 2u);
  EXPECT_EQ(list.Rows[0].Team, "St. John's");
  EXPECT_TRUE(list.Rows[0].User);
  EXPECT_EQ(list.Rows[0].Record, "9-4");
  EXPECT_EQ(list.Rows[1].Record, "3-5");
  EXPECT_EQ(list.Rows[1].SchedRank, 1);
  EXPECT_EQ(FormatIndex(list.Rows[0].CRIValue), "0.562");
}

TEST_F(RankingScreensTest, AwardListsGroupEachHonourUnderItsHeading) {
  const int guard = league_.AddPlayer("St. John's", 1, 60);
  const int center = league_.AddPlayer("Duke", 5, 70);
  store().Exec("UPDATE Player SET Name = 'Pat O''Neil' WHERE Id = ?", guard);
  auto win = [&](const std::string& type, int weekNo, int id) {
    store().Append(
        "AwardWinners",
        {{"Type", type}, {"WeekNo", int64_t{weekNo}}, {"PlayerId", int64_t{id}}, {"PPG", 21.5}});
  };
  win("week", 3, center);
  win("week", 1, guard);
  win("Big East", 5, center);
  win("Big East", 1, guard);
  win("Big EastPOY", 1, guard);
  win("FirstAA", 5, center);
  win("NationalF", 1, guard);

  const AwardList weeks = PlayersOfWeek(store(), "St. John's");
  ASSERT_EQ(weeks.Rows.size(), 2u);
  EXPECT_EQ(weeks.Rows[0].WeekNo, 1);
  EXPECT_EQ(weeks.Rows[0].Name, "Pat O'Neil");
  EXPECT_EQ(weeks.Rows[0].Team, "St. John's");
  EXPECT_EQ(weeks.Rows[0].Position, "PG");
  EXPECT_TRUE(weeks.Rows[0].User);
  EXPECT_EQ(weeks.Rows[1].Position, "C");
  EXPECT_EQ(PlayersOfWeek(store(), "St. John's", 3).Rows.size(), 1u);
  EXPECT_TRUE(PlayersOfWeek(store(), "St. John's", 2).Rows.empty());

  const std::vector<AwardList> conference = ConferenceAwards(store(), "St. John's", "Big East");
  ASSERT_EQ(conference.size(), 2u);  // no freshman team named
  EXPECT_EQ(conference[0].Title, "Big East All-Conference Team");
  EXPECT_EQ(conference[0].Rows[0].WeekNo, 1);
  EXPECT_EQ(conference[0].Rows[1].PlayerId, center);
  EXPECT_EQ(conference[1].Title, "Big East Player of the Year");

  const std::vector<AwardList> national = NationalAwards(store(), "St. John's");
  ASSERT_EQ(national.size(), 2u);
  EXPECT_EQ(national[0].Title, "First Team All America");
  EXPECT_EQ(national[1].Title, "National Freshman Team");
  EXPECT_DOUBLE_EQ(national[1].Rows[0].PPG, 21.5);
}

}  // namespace
}  // namespace courtmere
