// The non-conference fill over many seeded builds: background-only slots,
// who hosts, no conference mates, background teams only against
// first-division teams, and tournament teams free of week 1's other games.
#include <gtest/gtest.h>

#include <set>

#include "schedule/league_schedule.h"
#include "schedule/schedule_league.h"

namespace courtmere {
namespace {

using testing::kCoveringChoices;
using testing::ScheduleLeague;
using testing::ScheduleRow;

// One non-conference game with what the checks need to know of its sides.
struct FillGame {
  ScheduleRow row;
  bool homeBackground = false;
  bool awayBackground = false;
  std::string homeConference;  // from Team; empty for a background team
  std::string awayConference;
  bool homeInTournament = false;
  bool awayInTournament = false;
};

class NonConfFillTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    games_ = new std::vector<FillGame>();
    for (uint64_t seed = 1; seed <= 12; ++seed) {
      ScheduleLeague league(kCoveringChoices[seed % kCoveringChoices.size()], seed);
      BuildLeagueSchedules(league.session());
      for (const ScheduleRow& row : league.NonConfRows()) {
        if (row.GameType != "NonConference") continue;
        games_->push_back({row, league.IsBackground(row.HomeTeam),
                           league.IsBackground(row.AwayTeam), league.ConferenceOf(row.HomeTeam),
                           league.ConferenceOf(row.AwayTeam), InTournament(league, row.HomeTeam),
                           InTournament(league, row.AwayTeam)});
      }
    }
  }
  static void TearDownTestSuite() { delete games_; }

  static bool InTournament(ScheduleLeague& league, const std::string& school) {
    return league.store()
        .ScalarInt("SELECT 1 FROM PreSeasonTourney WHERE SchoolName = ?", school)
        .has_value();
  }

  static int Slot(const ScheduleRow& row) {
    return 2 * row.Week - (row.GameDay == "Saturday" ? 0 : 1);
  }

  static std::vector<FillGame>* games_;
};

std::vector<FillGame>* NonConfFillTest::games_ = nullptr;

TEST_F(NonConfFillTest, EveryGameStandsOnAThursdayOrSaturdayOutsideWeekFive) {
  ASSERT_GT(games_->size(), 5000u);
  for (const FillGame& g : *games_) {
    EXPECT_TRUE(g.row.GameDay == "Thursday" || g.row.GameDay == "Saturday");
    EXPECT_GE(g.row.Week, 1);
    EXPECT_LE(g.row.Week, 15);
    EXPECT_NE(g.row.Week, 5);
  }
}

TEST_F(NonConfFillTest, SlotsOneTwoFiveAndSixHoldOnlyBackgroundGames) {
  std::set<int> pairedSlots;
  for (const FillGame& g : *games_) {
    const int slot = Slot(g.row);
    const bool background = g.homeBackground || g.awayBackground;
    if (slot == 1 || slot == 2 || slot == 5 || slot == 6) {
      EXPECT_TRUE(background) << g.row.HomeTeam << " v " << g.row.AwayTeam << " slot " << slot;
    } else if (!background) {
      pairedSlots.insert(slot);
    }
  }
  EXPECT_TRUE(pairedSlots.count(3) && pairedSlots.count(4) && pairedSlots.count(7));
}

TEST_F(NonConfFillTest, TheBackgroundTeamHostsInSlotTwoAndOnlyThere) {
  int slotTwo = 0;
  for (const FillGame& g : *games_) {
    if (!g.homeBackground && !g.awayBackground) continue;
    if (Slot(g.row) == 2) {
      EXPECT_TRUE(g.homeBackground) << g.row.GameNo;
      ++slotTwo;
    } else {
      EXPECT_FALSE(g.homeBackground) << g.row.GameNo << " in slot " << Slot(g.row);
    }
  }
  EXPECT_GT(slotTwo, 0);
}

TEST_F(NonConfFillTest, ConferenceMatesNeverMeetAndConferencesAreRecorded) {
  for (const FillGame& g : *games_) {
    if (!g.homeBackground && !g.awayBackground) {
      EXPECT_NE(g.homeConference, g.awayConference) << g.row.HomeTeam << " v " << g.row.AwayTeam;
    }
    EXPECT_EQ(g.row.HomeConf, g.homeBackground ? g.row.HomeConf : g.homeConference);
    EXPECT_EQ(g.row.AwayConf, g.awayBackground ? g.row.AwayConf : g.awayConference);
    EXPECT_FALSE(g.row.HomeConf.empty());
    EXPECT_FALSE(g.row.AwayConf.empty());
  }
}

TEST_F(NonConfFillTest, BackgroundTeamsPlayOnlyFirstDivisionTeams) {
  for (const FillGame& g : *games_) {
    EXPECT_FALSE(g.homeBackground && g.awayBackground) << g.row.HomeTeam << " v " << g.row.AwayTeam;
    EXPECT_FALSE(!g.homeBackground && g.homeConference.empty()) << g.row.HomeTeam;
    EXPECT_FALSE(!g.awayBackground && g.awayConference.empty()) << g.row.AwayTeam;
  }
}

TEST_F(NonConfFillTest, PreseasonTournamentTeamsHaveNoOtherGameInWeekOne) {
  for (const FillGame& g : *games_) {
    if (g.row.Week != 1) continue;
    EXPECT_FALSE(g.homeInTournament && !g.homeBackground) << g.row.HomeTeam;
    EXPECT_FALSE(g.awayInTournament && !g.awayBackground) << g.row.AwayTeam;
  }
}

}  // namespace
}  // namespace courtmere
