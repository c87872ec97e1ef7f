// The preseason tournaments: the fields drawn by rating, their week-1 rows
// with pairing texts and placeholder codes, and the winners moving on as the
// games are recorded.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "schedule/league_schedule.h"
#include "schedule/preseason_advance.h"
#include "schedule/preseason_tournaments.h"
#include "schedule/schedule_league.h"

namespace courtmere {
namespace {

using testing::ScheduleLeague;
using testing::ScheduleRow;

std::vector<std::string> ByRating(Store& store, const std::string& table) {
  std::vector<std::string> schools;
  for (Rows rows =
           store.Query("SELECT SchoolName FROM " + table + " ORDER BY TeamRating DESC, SchoolName");
       rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  return schools;
}

// Seeds 1 to 8 of a tournament (index 0 unused).
std::vector<std::string> Field(Store& store, const std::string& tournament) {
  std::vector<std::string> seeds(9);
  for (Rows rows = store.Query(
           "SELECT Seed, SchoolName FROM PreSeasonTourney WHERE HostCity = ? ORDER BY Seed",
           tournament);
       rows.Next();) {
    seeds.at(rows.Int(0)) = rows.Text(1);
  }
  return seeds;
}

class PreseasonTest : public ::testing::Test {
 protected:
  PreseasonTest() : league_({"Conference USA", "Atlantic 10", "Southern"}, 3) {
    BuildLeagueSchedules(league_.session());
  }

  std::vector<ScheduleRow> TournamentRows(const std::string& tournament) {
    std::vector<ScheduleRow> rows;
    for (const ScheduleRow& row : league_.NonConfRows()) {
      if (row.GameType == tournament || row.GameType == tournament + "Temp") rows.push_back(row);
    }
    return rows;
  }

  // Records a result; the home side wins when `homeWins`.
  void Play(int gameNo, bool homeWins) {
    league_.store().Exec("UPDATE NonConfSchedule SET HomeScore = ?, AwayScore = ? WHERE GameNo = ?",
                         homeWins ? 70 : 60, homeWins ? 60 : 70, gameNo);
  }

  ScheduleLeague league_;
};

TEST_F(PreseasonTest, FieldsAreDrawnByRatingRank) {
  const auto teams = ByRating(league_.store(), "Team");
  const auto background = ByRating(league_.store(), "ScrubTeam");
  std::set<std::string> entrants;
  for (const PreseasonField& field : kPreseasonFields) {
    const auto seeds = Field(league_.store(), std::string(field.name));
    for (int s = 1; s <= 5; ++s) EXPECT_EQ(seeds[s], teams[field.teamRanks[s - 1] - 1]);
    for (int s = 6; s <= 8; ++s) {
      EXPECT_EQ(seeds[s], background[field.backgroundRanks[s - 6] - 1]);
    }
    for (int s = 1; s <= 8; ++s) {
      EXPECT_TRUE(entrants.insert(seeds[s]).second) << seeds[s];
      EXPECT_EQ(league_.IsBackground(seeds[s]), s > 5) << seeds[s];
    }
  }
  EXPECT_EQ(league_.store().RowCount("PreSeasonTourney"), 24);
  EXPECT_EQ(Field(league_.store(), "Hawaii Classic")[1], teams[0]);
  EXPECT_EQ(Field(league_.store(), "Alaska Challenge")[1], teams[1]);
  for (int rank = 0; rank < 4; ++rank) EXPECT_EQ(entrants.count(background[rank]), 0u);
}

TEST_F(PreseasonTest, WeekOneRowsCarryPairingTextsAndCodes) {
  int gameNo = 1;
  for (const PreseasonField& field : kPreseasonFields) {
    const std::string name(field.name);
    const auto seeds = Field(league_.store(), name);
    const auto rows = TournamentRows(name);
    ASSERT_EQ(rows.size(), 7u);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(rows[i].GameNo, gameNo++);
      EXPECT_EQ(rows[i].Week, 1);
      EXPECT_EQ(rows[i].GameDay, "Thursday");
      EXPECT_EQ(rows[i].GameType, name);
      EXPECT_EQ(rows[i].HomeTeam, seeds[i + 1]);
      EXPECT_EQ(rows[i].AwayTeam, seeds[8 - i]);
    }
    const std::string open[3][5] = {
        {"Friday", "1-8", "4-5"}, {"Friday", "2-7", "3-6"}, {"Sunday", "1-4", "2-3"}};
    for (int i = 0; i < 3; ++i) {
      const ScheduleRow& row = rows[4 + i];
      EXPECT_EQ(row.GameNo, gameNo++);
      EXPECT_EQ(row.GameDay, open[i][0]);
      EXPECT_EQ(row.GameType, name + "Temp");
      EXPECT_EQ(row.HomeTeam, open[i][1]);
      EXPECT_EQ(row.AwayTeam, open[i][2]);
      EXPECT_EQ(row.HomeConf, field.codes[2 * i]);
      EXPECT_EQ(row.AwayConf, field.codes[2 * i + 1]);
    }
  }
}

TEST_F(PreseasonTest, WinnersMoveOnAsTheDaysAreRecorded) {
  const std::string name = "Alaska Challenge";
  const auto seeds = Field(league_.store(), name);
  auto rows = TournamentRows(name);
  // Thursday: 1 beats 8, 2 loses to 7, 3 beats 6 first; 4 v 5 not yet played.
  Play(rows[0].GameNo, true);
  Play(rows[1].GameNo, false);
  Play(rows[2].GameNo, true);
  AdvancePreseasonWinners(league_.store(), 1, "Thursday");
  rows = TournamentRows(name);
  EXPECT_EQ(rows[4].HomeTeam, seeds[1]);
  EXPECT_EQ(rows[4].AwayTeam, "4-5");  // complete only with both Thursday games played
  EXPECT_EQ(rows[4].GameType, name + "Temp");
  EXPECT_EQ(rows[5].HomeTeam, seeds[7]);
  EXPECT_EQ(rows[5].AwayTeam, seeds[3]);
  EXPECT_EQ(rows[5].AwayConf, league_.ConferenceOf(seeds[3]));
  EXPECT_EQ(rows[5].GameType, name);

  // The fourth game is played late; recording the day again moves only it.
  Play(rows[3].GameNo, false);
  AdvancePreseasonWinners(league_.store(), 1, "Thursday");
  rows = TournamentRows(name);
  EXPECT_EQ(rows[4].AwayTeam, seeds[5]);
  EXPECT_EQ(rows[4].GameType, name);
  EXPECT_EQ(rows[6].HomeTeam, "1-4");

  // Friday: seed 5 wins the first game, seed 7 the second; Sunday is set.
  Play(rows[4].GameNo, false);
  Play(rows[5].GameNo, true);
  AdvancePreseasonWinners(league_.store(), 1, "Friday");
  AdvancePreseasonWinners(league_.store(), 1, "Friday");
  rows = TournamentRows(name);
  EXPECT_EQ(rows[6].HomeTeam, seeds[5]);
  EXPECT_EQ(rows[6].HomeConf, league_.ConferenceOf(seeds[5]));
  EXPECT_EQ(rows[6].AwayTeam, seeds[7]);
  EXPECT_EQ(rows[6].GameType, name);

  // The final's winner has nowhere to go; the other tournaments are untouched.
  Play(rows[6].GameNo, true);
  AdvancePreseasonWinners(league_.store(), 1, "Sunday");
  EXPECT_EQ(TournamentRows(name)[6].HomeTeam, seeds[5]);
  EXPECT_EQ(TournamentRows("Hawaii Classic")[4].HomeTeam, "1-8");
}

TEST_F(PreseasonTest, AFridayWinnerTakesTheFirstOpenSideOfTheFinal) {
  const std::string name = "Preseason ACT";
  const auto seeds = Field(league_.store(), name);
  AdvancePreseasonTournament(league_.store(), name, seeds[1]);  // Thursday winners
  AdvancePreseasonTournament(league_.store(), name, seeds[4]);
  AdvancePreseasonTournament(league_.store(), name, seeds[6]);
  AdvancePreseasonTournament(league_.store(), name, seeds[2]);
  auto rows = TournamentRows(name);
  EXPECT_EQ(rows[4].HomeTeam, seeds[1]);
  EXPECT_EQ(rows[4].AwayTeam, seeds[4]);
  EXPECT_EQ(rows[5].HomeTeam, seeds[2]);
  EXPECT_EQ(rows[5].AwayTeam, seeds[6]);
  AdvancePreseasonTournament(league_.store(), name, seeds[4]);  // Friday winners
  rows = TournamentRows(name);
  EXPECT_EQ(rows[6].HomeTeam, seeds[4]);
  EXPECT_EQ(rows[6].GameType, name + "Temp");
  AdvancePreseasonTournament(league_.store(), name, seeds[6]);
  rows = TournamentRows(name);
  EXPECT_EQ(rows[6].AwayTeam, seeds[6]);
  EXPECT_EQ(rows[6].GameType, name);
}

TEST(PreseasonFieldTest, TooSmallALeagueBuildsNoTournament) {
  ScheduleLeague league({"Big Sky", "MAC", "Northeast"}, 1);
  league.store().Exec("DELETE FROM ScrubTeam WHERE rowid > 12");
  BuildLeagueSchedules(league.session());
  EXPECT_EQ(league.store().RowCount("PreSeasonTourney"), 0);
  for (const ScheduleRow& row : league.NonConfRows()) EXPECT_EQ(row.GameType, "NonConference");
}

}  // namespace
}  // namespace courtmere
