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

bool InTournament(ScheduleLeague& league, const std::string& school) {
  return league.store()
      .ScalarInt("SELECT 1 FROM PreSeasonTourney WHERE SchoolName = ?", school)
      .has_value();
}

int Slot(const ScheduleRow& row) {
  return 2 * row.Week - (row.GameDay == "Saturday" ? 0 : 1);
}

// The non-conference games of twelve seeded builds.
std::vector<FillGame> FillGames() {
  std::vector<FillGame> games;
  for (uint64_t seed = 1; seed <= 12; ++seed) {
    ScheduleLeague league(kCoveringChoices[seed % kCoveringChoices.size()], seed);
    BuildLeagueSchedules(league.session());
    for (const ScheduleRow& row : league.NonConfRows()) {
      if (row.GameType != "NonConference") continue;
      games.push_back({row, league.IsBackground(row.HomeTeam), league.IsBackground(row.AwayTeam),
                       league.ConferenceOf(row.HomeTeam), league.ConferenceOf(row.AwayTeam),
                       InTournament(league, row.HomeTeam), InTournament(league, row.AwayTeam)});
    }
  }
  return games;
}

// Every game stands on a Thursday or Saturday of weeks 1 to 15 but 5;
// slots 1, 2, 5 and 6 hold only background games, and the background team
// hosts in slot 2 and only there; a background team plays only
// first-division teams, conference mates never meet, both conferences are
// recorded, and a preseason tournament team has no other game in week 1.
TEST(NonConfFillTest, EveryGameKeepsTheFillRules) {
  const std::vector<FillGame> games = FillGames();
  ASSERT_GT(games.size(), 5000u);
  std::set<int> pairedSlots;
  int backgroundHosts = 0;
  for (const FillGame& g : games) {
    const ScheduleRow& row = g.row;
    SCOPED_TRACE(row.HomeTeam + " v " + row.AwayTeam + " week " + std::to_string(row.Week) + " " +
                 row.GameDay);
    EXPECT_TRUE(row.GameDay == "Thursday" || row.GameDay == "Saturday");
    EXPECT_GE(row.Week, 1);
    EXPECT_LE(row.Week, 15);
    EXPECT_NE(row.Week, 5);

    const int slot = Slot(row);
    const bool background = g.homeBackground || g.awayBackground;
    if (slot == 1 || slot == 2 || slot == 5 || slot == 6) {
      EXPECT_TRUE(background);
    }
    if (!background) pairedSlots.insert(slot);
    EXPECT_EQ(g.homeBackground, background && slot == 2);
    backgroundHosts += g.homeBackground ? 1 : 0;

    EXPECT_FALSE(g.homeBackground && g.awayBackground);
    EXPECT_EQ(g.homeBackground, g.homeConference.empty());
    EXPECT_EQ(g.awayBackground, g.awayConference.empty());
    if (!background) {
      EXPECT_NE(g.homeConference, g.awayConference);
    }
    if (!g.homeBackground) {
      EXPECT_EQ(row.HomeConf, g.homeConference);
    }
    if (!g.awayBackground) {
      EXPECT_EQ(row.AwayConf, g.awayConference);
    }
    EXPECT_FALSE(row.HomeConf.empty());
    EXPECT_FALSE(row.AwayConf.empty());

    if (row.Week == 1) {
      EXPECT_FALSE(g.homeInTournament && !g.homeBackground);
      EXPECT_FALSE(g.awayInTournament && !g.awayBackground);
    }
  }
  EXPECT_TRUE(pairedSlots.count(3) && pairedSlots.count(4) && pairedSlots.count(7));
  EXPECT_GT(backgroundHosts, 0);
}

}  // namespace
}  // namespace courtmere
