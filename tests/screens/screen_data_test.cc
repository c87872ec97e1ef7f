// What the option, team and player screens read and write.
#include <gtest/gtest.h>

#include "league/prestige_bands.h"
#include "people/league_fixture.h"
#include "screens/display_format.h"
#include "screens/options.h"
#include "screens/player_card.h"
#include "screens/roster_view.h"
#include "screens/team_info.h"
#include "screens/team_stats.h"
#include "store/config.h"

namespace courtmere {
namespace {

std::string ValueOf(const std::vector<InfoLine>& lines, const std::string& label) {
  for (const InfoLine& line : lines) {
    if (line.Label == label) return line.Value;
  }
  return "(missing)";
}

TEST(DisplayFormatTest, FiguresHaveOneDecimalRoundedHalfToEven) {
  EXPECT_EQ(FormatOneDecimal(12.25), "12.2");
  EXPECT_EQ(FormatOneDecimal(0.75), "0.8");
  EXPECT_EQ(FormatPercent(0.4375), "43.8");
}

class ScreenDataTest : public ::testing::Test {
 protected:
  ScreenDataTest() {
    league_.AddTeam("St. John's", "East", 60, "Human");
    store().Exec(
        "UPDATE Team SET Population = 500, ArenaCapacity = 5602, Location = 'Queens', "
        "State = 'NY', Press = NULL, Tempo = 'Slow Down', OffenseType = 'Inside', "
        "Defense = 'Zone'");
    store().Append("HeadCoach", {{"Name", "Pat O'Neil"}, {"Team", "St. John's"}});
    store().Append("TeamStats", {{"SchoolName", "St. John's"},
                                 {"TotalWins", int64_t{9}},
                                 {"TotalLosses", int64_t{4}},
                                 {"FGPercent", 0.5}});
    for (int i = 0; i < 3; ++i) ids_.push_back(league_.AddPlayer("St. John's", 1 + i, 60 + i));
  }
  Session& session() { return league_.session(); }
  Store& store() { return league_.store(); }

  testing::LeagueFixture league_;
  std::vector<int> ids_;
};

TEST_F(ScreenDataTest, OptionsGoToTheSessionAndTheStore) {
  SubmitOptions(session(), {1, 0, 1, 14});
  EXPECT_EQ(league_.ui().Messages().back(), "Your Settings have been updated!");
  const Config stored = LoadConfig(store());
  EXPECT_EQ(stored.PlayByPlay, 1);
  EXPECT_EQ(stored.Autosave, 0);
  EXPECT_EQ(stored.NumPlayers, 1);
  EXPECT_EQ(stored.SimSpeed, 10) << "the ticker's pause runs from 0 to 10";
  const Options shown = CurrentOptions(session());
  EXPECT_EQ(shown.SimSpeed, 10);
  EXPECT_EQ(shown.NumPlayers, 1);
  SubmitOptions(session(), {1, 0, 1, -3});
  EXPECT_EQ(LoadConfig(store()).SimSpeed, 0) << "0 is no pause";
}

TEST_F(ScreenDataTest, TeamInfoWritesCountsAsTheProgramDoes) {
  const std::vector<InfoLine> info = TeamInfo(store(), "St. John's");
  EXPECT_EQ(ValueOf(info, "School"), "St. John's");
  EXPECT_EQ(ValueOf(info, "Location"), "Queens, NY");
  EXPECT_EQ(ValueOf(info, "Population"), "0,500");
  EXPECT_EQ(ValueOf(info, "Arena Capacity"), "5,602");
  EXPECT_EQ(ValueOf(info, "Record"), "9-4");
  EXPECT_EQ(ValueOf(info, "Head Coach"), "Pat O'Neil");
  EXPECT_EQ(ValueOf(info, "Prestige"), BandOf(60).Label) << "in the words of the set-up screens";
  EXPECT_TRUE(TeamInfo(store(), "Nowhere").empty());
}

// The season's games count in the all-time record while the season runs,
// and only once the season's end has added them to the school's row.
TEST_F(ScreenDataTest, TheAllTimeRecordHoldsThisSeasonOnce) {
  store().Exec("UPDATE Team SET OverallWins = 100, OverallGames = 150");
  store().Exec("UPDATE Config SET Stage = 'Season' WHERE IdConfig = 0");
  EXPECT_EQ(ValueOf(TeamInfo(store(), "St. John's"), "All-Time Record"), "109-54");
  store().Exec("UPDATE Config SET Stage = 'End Season' WHERE IdConfig = 0");
  EXPECT_EQ(ValueOf(TeamInfo(store(), "St. John's"), "All-Time Record"), "100-50");
}

TEST_F(ScreenDataTest, TheRosterReadsTheChartAndTactics) {
  store().Exec("UPDATE Team SET PG1 = ?, C3 = ?, Inactive = ?", ids_[0], ids_[1], ids_[2]);
  const DepthChart chart = LoadDepthChart(store(), "St. John's");
  EXPECT_EQ(chart.ids[0], ids_[0]);
  EXPECT_EQ(chart.ids[14], ids_[1]);
  EXPECT_EQ(chart.inactive, ids_[2]);
  const TeamTactics tactics = LoadTactics(store(), "St. John's");
  EXPECT_EQ(tactics.Press, "None") << "a missing press reads None";
  EXPECT_EQ(tactics.Tempo, "Slow Down");
  const std::vector<RosterRow> roster = TeamRoster(store(), "St. John's");
  ASSERT_EQ(roster.size(), 3u);
  EXPECT_EQ(roster[0].Id, ids_[2]) << "best scouted overall first";
  EXPECT_EQ(roster[0].PositionName, "SF");
}

TEST_F(ScreenDataTest, FiguresComeFromMemoryDuringTheSeason) {
  store().Exec("UPDATE PlayerStats SET Games = 1");
  store().Append(
      "PlayerStats",
      {{"Id", int64_t{ids_[0]}}, {"Games", int64_t{4}}, {"PPG", 11.5}, {"FGPercent", 0.5}});
  EXPECT_EQ(LoadPlayerCard(session(), ids_[0])->Season->Games, 4) << "no figures in memory";

  TeamSeasonLines& team = session().seasonStats.Team(1);
  team.SchoolName = "St. John's";
  team.Players[1].Id = ids_[0];
  team.Players[1].Games = 9;
  team.Players[1].OffRebounds = 10;
  team.Players[1].DefRebounds = 20;
  const std::optional<PlayerCard> card = LoadPlayerCard(session(), ids_[0]);
  ASSERT_TRUE(card);
  EXPECT_EQ(card->Season->Games, 9);
  EXPECT_EQ(card->Season->Rebounds, 30);
  EXPECT_FALSE(card->Career);
  EXPECT_EQ(card->Grades.size(), 10u);

  const std::vector<PlayerStatRow> rows = TeamPlayerStats(session(), "St. John's");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].Line.Games, 9);
  EXPECT_EQ(rows[1].Line.Games, 0) << "a man without a slot has no figures yet";
  EXPECT_FALSE(LoadPlayerCard(session(), 1));
}

TEST_F(ScreenDataTest, TeamTotalsStandBesideTheOpponents) {
  store().Exec("UPDATE TeamStats SET PPG = 71.25, PPGAllowed = 64.5, Shots = 80, ShotsMade = 40");
  const std::vector<TeamStatRow> rows = TeamTotals(store(), "St. John's");
  ASSERT_FALSE(rows.empty());
  EXPECT_EQ(rows[0].Team, "9-4");
  EXPECT_EQ(rows[1].Label, "Points per Game");
  EXPECT_EQ(rows[1].Team, "71.2");
  EXPECT_EQ(rows[1].Opponents, "64.5");
  EXPECT_EQ(rows[7].Team, "50.0");
  EXPECT_TRUE(TeamTotals(store(), "Duke").empty());
}

}  // namespace
}  // namespace courtmere
