// The media poll: the score of each kind of school in each part of the
// season, the rewrite of Ranking with Previous, and the background teams'
// unseen results.
#include "league/poll.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "league/dynasty_fixture.h"

namespace courtmere {
namespace {

using testing::DynastyFixture;

class PollTest : public ::testing::Test {
 protected:
  Store& store() { return d_.store(); }

  void Poll(int week) {
    d_.session().config.CurrWeek = week;
    UpdatePoll(d_.session());
  }
  void SetTeam(const std::string& school, double prestige, int rating, double strength) {
    store().Exec(
        "UPDATE Team SET Prestige = ?, TeamRating = ?, ScheduleStrength = ? WHERE SchoolName = ?",
        prestige, rating, strength, school);
  }
  void SetRecord(const std::string& school, int wins, int losses) {
    store().Exec("UPDATE TeamStats SET TotalWins = ?, TotalLosses = ? WHERE SchoolName = ?", wins,
                 losses, school);
  }
  double Points(const std::string& school) {
    return store()
        .ScalarDouble("SELECT TeamPoints FROM Ranking WHERE SchoolName = ?", school)
        .value_or(-1);
  }
  int Rank(const std::string& school) {
    return static_cast<int>(
        store()
            .ScalarInt("SELECT TeamRanking FROM Ranking WHERE SchoolName = ?", school)
            .value_or(-1));
  }
  std::string Background(int nth = 0) { return d_.Background(nth); }
  int Schools() {
    return static_cast<int>(store().ScalarInt("SELECT count(*) FROM Team").value_or(0) +
                            store().ScalarInt("SELECT count(*) FROM ScrubTeam").value_or(0));
  }
  DynastyFixture d_;
};

TEST_F(PollTest, BeforeAnyGameEachKindOfSchoolHasItsOwnFormula) {
  SetTeam("Duke", 70, 560, 490);
  store().Exec("UPDATE ScrubTeam SET Prestige = 30, TeamRating = 405 WHERE SchoolName = ?",
               Background());
  Poll(1);
  EXPECT_DOUBLE_EQ(Points("Duke"), 70 + 560 / 7.0 + 490 / 7.0);
  EXPECT_DOUBLE_EQ(Points(Background()), 30 + 405 / 6.75 + 60);

  // Every school once, ranked 1 to n in order of points.
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Ranking"), Schools());
  EXPECT_EQ(store().ScalarInt("SELECT count(DISTINCT SchoolName) FROM Ranking"), Schools());
  double last = 1e9;
  int expected = 0;
  for (Rows r = store().Query("SELECT TeamRanking, TeamPoints FROM Ranking ORDER BY TeamRanking");
       r.Next();) {
    EXPECT_EQ(r.Int(0), ++expected);
    EXPECT_LE(r.Double(1), last);
    last = r.Double(1);
  }
}

TEST_F(PollTest, AFirstDivisionTeamWithGamesWeighsItsRecordMoreAfterWeekFourEvenInAWeekOff) {
  SetTeam("Duke", 60, 540, 500);
  SetRecord("Duke", 3, 1);
  Poll(4);
  EXPECT_DOUBLE_EQ(Points("Duke"), 0.75 * 70 + (60 + 540 / 6.75) / 1.5 + 500 / 10.0);

  // From week 5 on the rating index's schedule strength replaces the season's.
  store().Exec("INSERT INTO CRIRank (SchoolName, SchedStrength) VALUES ('Duke', 0.52)");
  Poll(6);
  EXPECT_DOUBLE_EQ(Points("Duke"), 0.75 * 140 + (60 + 540 / 6.75) / 2 + 0.52 * 110);

  // One game behind him and none this week: still the formula of a team
  // with games.
  store().Exec("DELETE FROM CRIRank WHERE SchoolName = 'Duke'");
  SetRecord("Duke", 1, 0);
  Poll(3);
  EXPECT_DOUBLE_EQ(Points("Duke"), 70 + (60 + 540 / 6.75) / 1.5 + 50);
}

TEST_F(PollTest, ABackgroundTeamThatPlayedThePreseasonTournamentHasNoPointsUntilWeekFive) {
  const std::string team = Background();
  store().Exec(
      "UPDATE ScrubTeam SET Prestige = 80, TeamRating = 600, Wins = 2, Losses = 1 "
      "WHERE SchoolName = ?",
      team);
  for (int week : {1, 2, 4}) {
    Poll(week);
    EXPECT_EQ(Points(team), 0) << "week " << week;
    EXPECT_GT(Rank(team), Schools() - 10) << "week " << week;
  }
  // With week 6's index its record counts again, as it stood before this
  // poll's two unseen results.
  store().Exec("UPDATE ScrubTeam SET Wins = 4, Losses = 1 WHERE SchoolName = ?", team);
  store().Exec("INSERT INTO CRIRank (SchoolName, SchedStrength) VALUES (?, 0.5)", team);
  Poll(6);
  EXPECT_DOUBLE_EQ(Points(team), 0.8 * 140 + (80 + 600 / 6.75) / 2 + 0.5 * 110);
}

TEST_F(PollTest, PreviousIsTheOldRankAndANewSchoolsOwnRank) {
  // The set-up of a dynasty leaves every Ranking row without a rank.
  ASSERT_EQ(store().ScalarInt("SELECT count(*) FROM Ranking WHERE TeamRanking <> 0"), 0);
  Poll(1);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Ranking WHERE Previous <> TeamRanking"), 0);

  SetTeam("Duke", 0, 0, 0);  // drops to the bottom of the next poll
  const int before = Rank("Duke");
  Poll(2);
  EXPECT_EQ(store().ScalarInt("SELECT Previous FROM Ranking WHERE SchoolName = 'Duke'"), before);
  EXPECT_NE(Rank("Duke"), before);
  // A school without a Ranking row is not polled at all.
  store().Exec("DELETE FROM Ranking WHERE SchoolName = 'Duke'");
  Poll(3);
  EXPECT_EQ(Rank("Duke"), -1);
  EXPECT_EQ(store().ScalarInt("SELECT max(TeamRanking) FROM Ranking"), Schools() - 1);
}

TEST_F(PollTest, BackgroundRecordsDriftByTwoResultsAPollFromWeekThree) {
  auto games = [&] {
    return store().ScalarInt("SELECT sum(Wins + Losses) FROM ScrubTeam").value_or(-1);
  };
  const int64_t teams = store().ScalarInt("SELECT count(*) FROM ScrubTeam").value_or(0);
  ASSERT_GT(teams, 0);
  Poll(1);
  Poll(2);
  EXPECT_EQ(games(), 0);
  Poll(3);
  EXPECT_EQ(games(), 2 * teams);
  Poll(4);
  EXPECT_EQ(games(), 4 * teams);

  // Teams ranked above 25 win a roll above 15, then one above 20: some
  // 82.5% of their games.
  store().Exec("UPDATE ScrubTeam SET Wins = 0, Losses = 0");
  store().Exec("UPDATE Ranking SET TeamRanking = 1");
  Poll(3);
  const double share =
      *store().ScalarDouble("SELECT 1.0 * sum(Wins) / sum(Wins + Losses) FROM ScrubTeam");
  EXPECT_NEAR(share, 0.825, 0.05);
}

TEST(PollDrift, ThresholdsByOldRank) {
  const int cases[][3] = {{1, 15, 20},  {24, 15, 20}, {25, 29, 24},
                          {39, 29, 24}, {40, 24, 30}, {250, 24, 30}};
  for (const auto& [rank, first, second] : cases) {
    const DriftThresholds t = BackgroundDriftThresholds(rank);
    EXPECT_EQ(t.first, first) << rank;
    EXPECT_EQ(t.second, second) << rank;
  }
}

}  // namespace
}  // namespace courtmere
