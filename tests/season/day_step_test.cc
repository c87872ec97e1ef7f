// The day step: week 5's lone Saturday, the turn of the year at the end of
// week 6, a last day without games that still ends its week, the order of
// the week's events through the recruiting seam, the season's end, and a
// step that fails in the middle of its games leaving the previous day.
#include "season/day_step.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "engine/run_engine.h"
#include "season/day_screen.h"
#include "season/end_season.h"
#include "season/recruiting_week.h"
#include "season/schedule_tables.h"
#include "season_fixture.h"
#include "store/inbox.h"

namespace courtmere::testing {
namespace {

// A recruiting library that notes each call.
class RecordingRecruiting : public RecruitingWeek {
 public:
  bool Active() const override { return true; }
  void ComputerRecruiting(Session&, int week, bool) override {
    Note("ComputerRecruiting " + std::to_string(week));
  }
  void ClearWeekDecisions(Session&) override { Note("ClearWeekDecisions"); }
  void ClearWeekBids(Session&) override { Note("ClearWeekBids"); }
  void EstimateTopBids(Session&) override { Note("EstimateTopBids"); }
  void SetWeeklyPoints(Session& s) override {
    Note("SetWeeklyPoints " + std::to_string(s.config.CurrWeek));
  }
  void DeclareNBARecruits(Session&) override { Note("DeclareNBARecruits"); }
  void ScoutRecruitReport(Session&, int r) override {
    Note("ScoutRecruitReport " + std::to_string(r));
  }
  void RecruitInterestReport(Session&) override { Note("RecruitInterestReport"); }
  void UpdateRecruitStats(Session&, int u) override {
    Note("UpdateRecruitStats " + std::to_string(u));
  }
  void FindBackupRecruit(Session&) override { Note("FindBackupRecruit"); }
  void RecruitTestScores(Session&, int r) override {
    Note("RecruitTestScores " + std::to_string(r));
  }

  std::vector<std::string> calls;

 private:
  void Note(std::string call) { calls.push_back(std::move(call)); }
};

int64_t UnplayedOn(Store& store, int week, const std::string& day) {
  int64_t games = 0;
  for (const std::string& table : SeasonScheduleTables(store)) {
    games += *store.ScalarInt(
        "SELECT count(*) FROM " + table + " WHERE Week = ? AND GameDay = ? AND HomeScore = 0", week,
        day);
  }
  return games;
}

int64_t GamesOn(Store& store, int week, const std::string& day) {
  int64_t games = 0;
  for (const std::string& table : SeasonScheduleTables(store)) {
    games += *store.ScalarInt("SELECT count(*) FROM " + table + " WHERE Week = ? AND GameDay = ?",
                              week, day);
  }
  return games;
}

std::vector<std::string> Subjects(const Inbox& inbox) {
  std::vector<std::string> subjects;
  for (const InboxMessage& m : inbox.Messages) subjects.push_back(m.Subject);
  return subjects;
}

// The week's own progress texts among all the step showed.
std::vector<std::string> Only(const std::vector<std::string>& captions,
                              const std::vector<std::string>& wanted) {
  std::vector<std::string> kept;
  for (const std::string& c : captions) {
    if (std::find(wanted.begin(), wanted.end(), c) != wanted.end()) kept.push_back(c);
  }
  return kept;
}

int TotalSeasonPoints(const PlayerStatsStore& stats) {
  int points = 0;
  for (int t = 1; t <= PlayerStatsStore::kMaxTeams; ++t) {
    for (const PlayerSeasonLine& line : stats.Team(t).Players) points += line.Points;
  }
  return points;
}

using DayStep = SeasonFixture;

TEST_F(DayStep, WeekFiveIsOneSaturdayWithoutGamesAndOnePressLeadsToWeekSix) {
  GoTo(5, "Thursday");
  DayScreen screen = OpenDayScreen(session());
  EXPECT_EQ(config().CurrDay, "Saturday");
  EXPECT_EQ(screen.notice, (std::vector<std::string>{"No Games Today", "Click Sim Day to",
                                                     "Advance to next week"}));
  EXPECT_TRUE(screen.simEnabled);
  EXPECT_FALSE(screen.nextEnabled);
  RecordingRecruiting recruiting;
  run().recruiting = &recruiting;
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrWeek, 6);
  EXPECT_EQ(config().CurrDay, "Thursday");
  EXPECT_EQ(*store().ScalarText("SELECT CurrDay FROM Config WHERE IdConfig = 0"), "Thursday");
  EXPECT_EQ(recruiting.calls,
            (std::vector<std::string>{"ComputerRecruiting 5", "ClearWeekDecisions",
                                      "SetWeeklyPoints 6"}));
  EXPECT_EQ(run().caption, "Courtmere (Contact Period)");
}

// The end of week 6 turns the year (not its Thursday) and runs the week's
// events in their order.
TEST_F(DayStep, TheEndOfWeekSixTurnsTheYearAndRunsItsEventsInOrder) {
  const int year = config().CurrYear;
  GoTo(6, "Thursday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrYear, year);
  RecordingRecruiting recruiting;
  run().recruiting = &recruiting;
  const auto thursday = static_cast<std::ptrdiff_t>(ui().Captions().size());
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrWeek, 7);
  EXPECT_EQ(config().CurrYear, year + 1);
  EXPECT_EQ(*store().ScalarInt("SELECT CurrYear FROM Config WHERE IdConfig = 0"), year + 1);
  EXPECT_EQ(recruiting.calls,
            (std::vector<std::string>{"ScoutRecruitReport 2", "RecruitInterestReport",
                                      "ClearWeekDecisions", "ComputerRecruiting 6", "ClearWeekBids",
                                      "EstimateTopBids", "SetWeeklyPoints 7"}));
  const std::vector<std::string> saturday(ui().Captions().begin() + thursday,
                                          ui().Captions().end());
  const std::vector<std::string> events = {
      "Setting up CPU lineups", "Gathering info on second recruit",
      "Updating Stats",         "Checking Recruit Interest",
      "CPU Recruiting",         "Updating Lineups"};
  EXPECT_EQ(Only(saturday, events), events);
  EXPECT_EQ(run().caption, "Courtmere (Evaluation Period)");
}

TEST_F(DayStep, RecruitingStopsAfterWeekTwelve) {
  RecordingRecruiting recruiting;
  run().recruiting = &recruiting;
  GoTo(12, "Saturday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(recruiting.calls.back(), "SetWeeklyPoints 13");
  recruiting.calls.clear();
  GoTo(13, "Saturday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_TRUE(recruiting.calls.empty());
}

TEST_F(DayStep, WithoutRecruitingNoRecruitingEventClaimsToHaveRun) {
  GoTo(2, "Saturday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  GoTo(4, "Saturday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  for (const std::string& caption : ui().Captions()) {
    EXPECT_NE(caption, "Players Declaring for NBA draft");
    EXPECT_NE(caption, "CPU Recruiting");
  }
  for (const char* subject : {"NBA Draft List", "Recruit Update"}) {
    EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM InboxMessage WHERE Subject = ?", subject),
              0);
  }
  // The scholarships of week 2 are not recruiting's: every team has its count.
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Team WHERE Scholarships IS NULL"), 0);
}

TEST_F(DayStep, ALastDayWithoutGamesStillEndsItsWeek) {
  GoTo(3, "Saturday");
  for (const std::string& table : SeasonScheduleTables(store())) {
    store().Exec("DELETE FROM " + table + " WHERE Week = 3 AND GameDay = 'Saturday'");
  }
  // The inactive man may be hurt without stopping the day.
  const int hurt =
      *store().ScalarInt("SELECT Inactive FROM Team WHERE SchoolName = ?", kUserSchool);
  store().Exec("UPDATE Player SET Health = 'Knee', TimeInjured = 1 WHERE Id = ?", hurt);
  store().Exec("UPDATE Trainer SET Ability = 100 WHERE Team = ?", kUserSchool);
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed) << ui().Messages().back();
  EXPECT_EQ(config().CurrWeek, 4);
  EXPECT_EQ(config().CurrDay, "Thursday");
  // Hurt and healed between two of the trainer's letters: told neither way.
  EXPECT_EQ(Subjects(session().inbox), (std::vector<std::string>{"Academic Update"}));
  EXPECT_EQ(session().inbox.Week, 3);
  // One week of healing with a trainer of 100 heals a man with a week left
  // unless the draw is 1 or 2.
  EXPECT_EQ(*store().ScalarText("SELECT Health FROM Player WHERE Id = ?", hurt), "Good");
}

TEST_F(DayStep, TheUsersGameHeadsTheListAndTheListKeepsItsResults) {
  GoTo(2, "Thursday");
  DayScreen screen = OpenDayScreen(session());
  ASSERT_FALSE(screen.rows.empty());
  ASSERT_TRUE(screen.userPlays);
  const DayRow& first = screen.rows.front();
  EXPECT_TRUE(first.HomeTeam == kUserSchool || first.AwayTeam == kUserSchool);
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  // The list stays on the day just played, with its results and leaders.
  const DayScreen& after = run().screen;
  EXPECT_EQ(after.shown, (CalendarDay{2, "Thursday"}));
  EXPECT_FALSE(after.simEnabled);
  ASSERT_EQ(after.rows.size(), screen.rows.size());
  for (const DayRow& row : after.rows) {
    EXPECT_TRUE(row.Played());
    EXPECT_NE(row.HomeScore, row.AwayScore);
    EXPECT_TRUE(row.HomePoints.find('-') != std::string::npos) << row.HomePoints;
  }
  EXPECT_EQ(UnplayedOn(store(), 2, "Thursday"), 0);
}

// The season ends on Monday of week 21, where Sim Day stops. End Season:
// refused before the season is over, nothing on No, and on Yes the season's
// figures kept, the stage "End Season" and the autosave when the option
// asks for it.
TEST_F(DayStep, TheSeasonEndsOnMondayOfWeekTwentyOneAndOnlyThenEndSeasonRuns) {
  const std::string before = DumpStore(store());
  EXPECT_EQ(EndSeason(run()), SeasonEnd::kRefused);
  EXPECT_TRUE(DumpStore(store()) == before);
  GoTo(20, "Monday");
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrWeek, 21);
  EXPECT_EQ(config().CurrDay, "Monday");
  EXPECT_EQ(config().Stage, "Season Over");
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0"), "Season Over");
  DayScreen screen = OpenDayScreen(session());
  EXPECT_FALSE(screen.simEnabled);
  EXPECT_FALSE(screen.nextEnabled);
  const std::string over = DumpStore(store());
  EXPECT_EQ(SimDay(run()), DayOutcome::kStopped);
  EXPECT_TRUE(DumpStore(store()) == over);
  ui().QueueAnswer(false);
  EXPECT_EQ(EndSeason(run()), SeasonEnd::kDeclined);
  EXPECT_EQ(ui().Questions().back(), "Do you wish to end this season?");
  EXPECT_TRUE(DumpStore(store()) == over);

  store().Exec("UPDATE Config SET Autosave = 1 WHERE IdConfig = 0");
  session().config.Autosave = 1;
  run().autoSim = true;
  EXPECT_EQ(EndSeason(run()), SeasonEnd::kEnded);
  EXPECT_FALSE(run().autoSim);
  EXPECT_EQ(config().Stage, "End Season");
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0"), "End Season");
  EXPECT_GT(Count("SELECT count(*) FROM PlayerStats"), 0);
  EXPECT_TRUE(std::filesystem::exists(session().folder.Path("\\SaveGame\\AutoSave.CMR")));
}

// The engine fails after a few games of the day, in the user's list or in
// the rest of the day: nothing of the day stays, and the next press plays
// the whole day.
class FailingDay : public SeasonFixture, public ::testing::WithParamInterface<bool> {};

TEST_P(FailingDay, LeavesThePreviousDayAndTheNextPressPlaysItWhole) {
  const bool inList = GetParam();
  GoTo(2, "Thursday");
  const int64_t games = GamesOn(store(), 2, "Thursday");
  const int listed = static_cast<int>(OpenDayScreen(session()).rows.size());
  ASSERT_GT(listed, 3);
  ASSERT_GT(games, listed + 3);
  const int failAt = inList ? 3 : listed + 3;
  int played = 0;
  bool failing = true;
  run().runGame = [&played, &failing, failAt](Game& game, DayResults& day,
                                              const GameRequest& request, std::string& box,
                                              std::string& log) {
    if (++played == failAt && failing) throw std::runtime_error("the engine broke down");
    return RunEngine(game, day, request, box, log);
  };
  const std::string before = DumpStore(store());
  const int pointsBefore = TotalSeasonPoints(session().seasonStats);
  EXPECT_EQ(SimDay(run()), DayOutcome::kFailed);
  EXPECT_EQ(played, failAt);
  EXPECT_TRUE(DumpStore(store()) == before);
  EXPECT_EQ(TotalSeasonPoints(session().seasonStats), pointsBefore);
  EXPECT_EQ(config().CurrDay, "Thursday");
  EXPECT_TRUE(ui().Messages().back().starts_with(inList ? "Error in SimGames, the error code is "
                                                        : "The error occured in SimDay."))
      << ui().Messages().back();

  played = 0;
  failing = false;
  ASSERT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(played, games);
  EXPECT_EQ(UnplayedOn(store(), 2, "Thursday"), 0);
  EXPECT_GT(TotalSeasonPoints(session().seasonStats), pointsBefore);
  EXPECT_EQ(config().CurrDay, "Saturday");
}

INSTANTIATE_TEST_SUITE_P(DayStep, FailingDay, ::testing::Bool());

// Box scores on, and no folder to write them to: the step ends with the
// error and the store at the previous day.
TEST_F(DayStep, ABoxScoreThatCannotBeWrittenEndsTheStep) {
  store().Exec("UPDATE Config SET NumPlayers = 1 WHERE IdConfig = 0");
  session().config.NumPlayers = 1;
  const std::filesystem::path logs = folder() / "log";
  std::filesystem::remove_all(logs);
  { std::ofstream blocker(logs); }
  GoTo(2, "Thursday");
  const std::string before = DumpStore(store());
  EXPECT_EQ(SimDay(run()), DayOutcome::kFailed);
  EXPECT_TRUE(DumpStore(store()) == before);
  EXPECT_TRUE(ui().Messages().back().starts_with("Error in SimGames, the error code is "))
      << ui().Messages().back();
}

}  // namespace
}  // namespace courtmere::testing
