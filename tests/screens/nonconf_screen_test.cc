// The user's two non-conference views: their games, titles, and the
// candidates each game offers.
#include "screens/nonconf_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "schedule/league_schedule.h"
#include "schedule/schedule_league.h"

namespace courtmere {
namespace {

using testing::ScheduleLeague;

class NonConfScreenTest : public ::testing::Test {
 protected:
  explicit NonConfScreenTest(uint64_t seed = 21) : league_({"Big Sky", "MAC", "Northeast"}, seed) {
    BuildLeagueSchedules(league_.session());
  }

  double PrestigeOf(const std::string& school) {
    if (league_.IsBackground(school)) {
      return *store().ScalarDouble("SELECT InitialPrestige FROM ScrubTeam WHERE SchoolName = ?",
                                   school);
    }
    return *store().ScalarDouble("SELECT Prestige FROM Team WHERE SchoolName = ?", school);
  }
  bool InTournament(const std::string& school) {
    return store()
        .ScalarInt("SELECT 1 FROM PreSeasonTourney WHERE SchoolName = ?", school)
        .has_value();
  }
  Store& store() { return league_.store(); }

  ScheduleLeague league_;
};

// Candidate bounds of the eight games for a user of prestige p.
struct Bound {
  bool background;
  bool atLeast;
  double value;
};
Bound BoundOf(int position, double p) {
  const double b = std::max(p, 40.0);
  const double t = std::max(p, 50.0);
  const Bound bounds[] = {{true, false, b / 2 + 10},  {true, true, b - 15},
                          {false, true, t / 2 + 10},  {false, false, t - 15},
                          {true, false, b / 3 + 20},  {true, false, b},
                          {false, false, t / 3 + 20}, {false, false, t}};
  return bounds[position - 1];
}

TEST_F(NonConfScreenTest, PreConferenceGamesOfferCandidatesByPositionAndBound) {
  const std::string team = "Clemson";
  ASSERT_FALSE(InTournament(team));
  const double p = PrestigeOf(team);
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), team);
  EXPECT_EQ(screen.Title, "Setup Pre-Conference Schedule for Clemson");
  ASSERT_EQ(screen.Rows.size(), 8u);
  std::vector<std::string> opponents;
  for (const NonConfRow& row : screen.Rows) opponents.push_back(row.Opponent);
  for (const NonConfRow& row : screen.Rows) {
    SCOPED_TRACE(row.Position);
    // Weeks 1 to 4, Thursday before Saturday.
    EXPECT_EQ(row.Week, (row.Position + 1) / 2);
    EXPECT_EQ(row.GameDay, row.Position % 2 == 1 ? "Thursday" : "Saturday");
    ASSERT_TRUE(row.Offered());
    EXPECT_EQ(row.Choices.front().School, row.Opponent);
    EXPECT_GE(row.Choices.size(), 2u);
    EXPECT_LE(row.Choices.size(), 9u);
    const Bound bound = BoundOf(row.Position, p);
    for (size_t i = 1; i < row.Choices.size(); ++i) {
      const NonConfChoice& c = row.Choices[i];
      EXPECT_EQ(league_.IsBackground(c.School), bound.background) << c.School;
      const double prestige = PrestigeOf(c.School);
      EXPECT_EQ(prestige >= bound.value, bound.atLeast) << c.School << " " << prestige;
      EXPECT_NE(c.Conference, "ACC");
      if (!bound.background) {
        EXPECT_EQ(std::count(opponents.begin(), opponents.end(), c.School), 0) << c.School;
      }
      EXPECT_FALSE(row.Position <= 2 && InTournament(c.School)) << c.School;
      EXPECT_FALSE(c.Prestige.empty());
    }
  }
}

TEST_F(NonConfScreenTest, BoundsAreWorkedOutFromFortyOrFiftyForALowPrestige) {
  store().Exec("UPDATE Team SET Prestige = 30 WHERE SchoolName = 'Clemson'");
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), "Clemson");
  ASSERT_EQ(screen.Rows.size(), 8u);
  // Game 8: first-division schools below 50, not below 30.
  double strongest = 0;
  for (size_t i = 1; i < screen.Rows[7].Choices.size(); ++i) {
    const double prestige = PrestigeOf(screen.Rows[7].Choices[i].School);
    EXPECT_LT(prestige, 50);
    strongest = std::max(strongest, prestige);
  }
  EXPECT_GE(strongest, 30);
  // Game 6: background teams below 40.
  for (size_t i = 1; i < screen.Rows[5].Choices.size(); ++i) {
    EXPECT_LT(PrestigeOf(screen.Rows[5].Choices[i].School), 40);
  }
}

TEST_F(NonConfScreenTest, APrestigeNotYetWorkedOutFallsBackToTheInitialOne) {
  store().Exec("UPDATE Team SET Prestige = 0, InitialPrestige = 90 WHERE SchoolName = 'Clemson'");
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), "Clemson");
  // Game 3: first-division schools of at least 90 / 2 + 10, by InitialPrestige.
  ASSERT_GT(screen.Rows[2].Choices.size(), 1u);
  for (size_t i = 1; i < screen.Rows[2].Choices.size(); ++i) {
    const std::string& school = screen.Rows[2].Choices[i].School;
    EXPECT_GE(
        *store().ScalarDouble("SELECT InitialPrestige FROM Team WHERE SchoolName = ?", school), 55);
  }
}

TEST_F(NonConfScreenTest, ATournamentGameIsShownButNotOffered) {
  const std::string team = *store().ScalarText(
      "SELECT SchoolName FROM PreSeasonTourney WHERE Seed = 1 AND HostCity = 'Hawaii Classic'");
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), team);
  ASSERT_EQ(screen.Rows.size(), 7u);  // the Thursday game and slots 3 to 8
  EXPECT_EQ(screen.Rows[0].GameType, "Hawaii Classic");
  EXPECT_FALSE(screen.Rows[0].Offered());
  EXPECT_FALSE(ChoiceOffered(league_.session(), screen, 0, screen.Rows[1].Opponent));
  for (size_t i = 1; i < screen.Rows.size(); ++i) EXPECT_TRUE(screen.Rows[i].Offered());
}

TEST_F(NonConfScreenTest, ATeamWithoutGamesShowsNoRows) {
  store().Exec("DELETE FROM NonConfSchedule WHERE HomeTeam = 'Clemson' OR AwayTeam = 'Clemson'");
  EXPECT_TRUE(ShowPreConferenceGames(league_.session(), "Clemson").Rows.empty());
  EXPECT_TRUE(ShowOtherGames(league_.session(), "Clemson").Rows.empty());
  EXPECT_EQ(kNoGames, "No Games");
}

TEST_F(NonConfScreenTest, OtherGamesOfferTheSchoolsPlayingThatDay) {
  const NonConfScreen screen = ShowOtherGames(league_.session(), "Clemson");
  EXPECT_EQ(screen.Title, "Setup Other NonConference Games for Clemson");
  ASSERT_FALSE(screen.Rows.empty());
  int previous = 0;
  for (const NonConfRow& row : screen.Rows) {
    EXPECT_GT(row.Week, 5);
    EXPECT_GT(row.GameNo, previous);
    previous = row.GameNo;
    EXPECT_EQ(row.Heading, " Week " + std::to_string(row.Week));
    ASSERT_TRUE(row.Offered());
    EXPECT_EQ(row.Choices.front().School, row.Opponent);
    for (size_t i = 1; i < row.Choices.size(); ++i) {
      const std::string& school = row.Choices[i].School;
      EXPECT_NE(school, "Clemson");
      EXPECT_NE(row.Choices[i].Conference, "ACC");
      EXPECT_TRUE(store()
                      .ScalarInt("SELECT 1 FROM NonConfSchedule WHERE Week = ? AND GameDay = ? "
                                 "AND (HomeTeam = ? OR AwayTeam = ?)",
                                 row.Week, row.GameDay, school, school)
                      .has_value());
    }
  }
}

TEST_F(NonConfScreenTest, TheCommandLineMayNameAnySchoolTheRulesAllow) {
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), "Clemson");
  // Game 8 takes first-division schools of other conferences below Clemson.
  const std::string weaker = *store().ScalarText(
      "SELECT SchoolName FROM Team WHERE Conference <> 'ACC' AND Prestige < ? "
      "ORDER BY Prestige LIMIT 1",
      PrestigeOf("Clemson"));
  EXPECT_TRUE(ChoiceOffered(league_.session(), screen, 7, weaker));
  EXPECT_FALSE(ChoiceOffered(league_.session(), screen, 7, "Duke"));  // own conference
  EXPECT_FALSE(ChoiceOffered(league_.session(), screen, 0, weaker));  // background only
  EXPECT_FALSE(ChoiceOffered(league_.session(), screen, 7, "Nowhere U"));
  EXPECT_TRUE(ChoiceOffered(league_.session(), screen, 7, screen.Rows[7].Opponent));
}

}  // namespace
}  // namespace courtmere
