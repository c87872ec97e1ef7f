#include "offseason/dynasty_year.h"

#include <fmt/format.h>

#include <stdexcept>

#include "league/head_coach.h"
#include "league/national_tourneys.h"
#include "league/start_season.h"
#include "offseason/begin_offseason.h"
#include "offseason/career_steps.h"
#include "offseason/nba_draft.h"
#include "offseason/train_players.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/end_season.h"
#include "season/season_run.h"
#include "store/dynasty_seed.h"
#include "store/season_stats.h"
#include "store/session.h"

namespace courtmere {

namespace {

bool PlayToSeasonOver(SeasonRun& run) {
  Session& session = run.session;
  while (session.config.Stage == kStageSeason) {
    SettleWeekFive(session);
    if (SimDay(run) != DayOutcome::kPlayed) return false;
  }
  return true;
}

void ReadRecord(Session& session, YearSummary& summary) {
  Store& store = session.Db();
  summary.school = HumanSchool(store);
  // The season's record as the school's statistics keep it, the
  // tournaments' games included.
  Rows r = store.Query("SELECT TotalWins, TotalLosses FROM TeamStats WHERE SchoolName = ?",
                       summary.school);
  if (r.Next()) {
    summary.wins = r.Int(0);
    summary.losses = r.Int(1);
  }
  summary.champion = NctChampion(store).value_or("");
  summary.year = session.config.CurrYear;
}

}  // namespace

bool AdvanceStage(SeasonRun& run, CareerSteps& career) {
  Session& session = run.session;
  const std::string stage = session.config.Stage;
  if (stage == kStageSeason) return PlayToSeasonOver(run);
  SeedForPlace(session, "command");
  if (stage == kStageSeasonOver) return EndSeason(run) == SeasonEnd::kEnded;
  if (stage == kStageEndSeason) return ProceedWithDraft(session, career);
  if (stage == kStageNbaDraft) {
    career.ChooseJob(session);
    return BeginOffseason(session) == OffseasonBegin::kBegun;
  }
  if (stage == kStageBeginOffSeason) return TrainPlayers(session, career);
  if (stage == kStagePostTraining) {
    career.FillStaff(session);
    if (StartSeason(session) != SeasonStart::kStarted) return false;
    LoadSeasonStats(session);
    return true;
  }
  return false;
}

YearSummary PlayYear(SeasonRun& run, CareerSteps& career) {
  Session& session = run.session;
  YearSummary summary;
  auto advance = [&] {
    const std::string stage = session.config.Stage;
    if (!AdvanceStage(run, career)) {
      throw std::runtime_error(fmt::format("the dynasty stopped in {} (week {}, {} {})", stage,
                                           session.config.CurrWeek, session.config.CurrDay,
                                           session.config.CurrYear));
    }
  };
  if (session.config.Stage == kStagePostTraining) advance();
  while (session.config.Stage != kStagePostTraining) {
    if (session.config.Stage == kStageSeasonOver) ReadRecord(session, summary);
    advance();
    if (session.config.Stage == kStageNbaDraft) {
      summary.fired = session.Db()
                          .ScalarText("SELECT Team FROM HeadCoach LIMIT 1")
                          .value_or("")
                          .starts_with("Fired-");
    }
  }
  if (const std::string now = HumanSchool(session.Db());
      !summary.school.empty() && now != summary.school) {
    summary.moved = now;
  }
  advance();
  // The class that has just joined, as Start Season ranks it.
  summary.classRank = static_cast<int>(
      session.Db()
          .ScalarInt("SELECT ClassRank FROM Team WHERE SchoolName = ?", HumanSchool(session.Db()))
          .value_or(0));
  return summary;
}

}  // namespace courtmere
