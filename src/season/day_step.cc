#include "season/day_step.h"

#include <SQLiteCpp/Exception.h>

#include <memory>
#include <system_error>

#include "cpu/computer_roster.h"
#include "engine/engine_error.h"
#include "league/conf_tourney.h"
#include "league/national_tourneys.h"
#include "schedule/preseason_advance.h"
#include "season/calendar.h"
#include "season/day_guards.h"
#include "season/game_batch.h"
#include "season/injury_report.h"
#include "season/recruiting_week.h"
#include "season/schedule_tables.h"
#include "season/season_observer.h"
#include "season/season_run.h"
#include "season/week_end.h"
#include "store/dynasty_seed.h"
#include "store/session.h"

namespace courtmere {

namespace {

// Raised by a listed batch that failed; its message has been shown.
struct ListedGamesFailed {};

int ErrorCode(const std::exception& error) {
  if (const auto* e = dynamic_cast<const SQLite::Exception*>(&error)) return e->getErrorCode();
  if (const auto* e = dynamic_cast<const std::system_error*>(&error)) return e->code().value();
  if (const auto* e = dynamic_cast<const EngineError*>(&error)) return e->Code();
  return 0;
}

void SetUpLineups(SeasonRun& run, bool automatic) {
  Session& session = run.session;
  session.ui.ShowProgress("Setting up CPU lineups");
  SetCPURoster(session, run.autoSim || automatic);
  // Under the auto-sim the user's chart is the computer's, set anew each day
  // so that no hurt or suspended man stands in it.
  if (automatic) SetTeamLineup(session, session.humanSchool, 0);
  run.played.clear();
  BringInboxUpTo(session, session.config.CurrWeek);
}

std::string UsersPreseasonTournament(Session& session) {
  return session.Db()
      .ScalarText("SELECT HostCity FROM PreSeasonTourney WHERE SchoolName = ?", session.humanSchool)
      .value_or("");
}

bool PlayListedGames(SeasonRun& run) {
  Session& session = run.session;
  run.screen.shown = {session.config.CurrWeek, session.config.CurrDay};
  ShowDay(session, run.screen);
  if (run.screen.UnplayedCount() == 0) return true;
  try {
    return SimListedGames(run);
  } catch (const std::exception& error) {
    session.ui.Message("Error in SimGames, the error code is " + std::to_string(ErrorCode(error)));
    throw ListedGamesFailed{};
  }
}

// Every game of the day outside the user's list, background ones included.
void PlayRestOfDay(SeasonRun& run, int week, const std::string& day) {
  Store& store = run.session.Db();
  SimConferenceGames(run, day, "NonConference", week);
  if (week == 1) AdvancePreseasonWinners(store, week, day);
  for (const std::string& conference : LeagueConferences(store)) {
    if (std::find(run.played.begin(), run.played.end(), conference) != run.played.end()) continue;
    SimConferenceGames(run, day, conference, week);
  }
}

// Steps 4 to 8: the games, then the tournaments' next rounds; false when
// the user's list could not be played.
bool PlayGames(SeasonRun& run, bool automatic, int week, const std::string& day) {
  Session& session = run.session;
  if (!automatic && !PlayListedGames(run)) return false;
  if (week == 1) {
    AdvancePreseasonWinners(session.Db(), week, day);
    const std::string tournament = UsersPreseasonTournament(session);
    if (!automatic && run.observer != nullptr && !tournament.empty()) {
      run.observer->ShowPreseasonBracket(tournament);
    }
  }
  if (week < 17) PlayRestOfDay(run, week, day);
  if (week == 16) {
    for (const std::string& conference : LeagueConferences(session.Db())) {
      AdvanceConfTourney(session, conference, week, day);
    }
  }
  if (week >= 17) RecordPostseasonDay(session, week, day);
  return true;
}

void WriteCalendar(Session& session, const CalendarDay& next) {
  Config& c = session.config;
  c.CurrWeek = next.week;
  c.CurrDay = next.day;
  session.Db().Exec("UPDATE Config SET CurrWeek = ?, CurrDay = ?, CurrYear = ? WHERE IdConfig = 0",
                    c.CurrWeek, c.CurrDay, c.CurrYear);
}

// Step 14: the next week begins, with the user's recruiting budget.
void ChangeWeek(SeasonRun& run, int week, const std::string& day) {
  const CalendarDay next = NextDay(week, day);
  if (next.week <= 13 && run.recruiting->Active()) {
    run.session.config.CurrWeek = next.week;
    run.recruiting->SetWeeklyPoints(run.session);
  }
  WriteCalendar(run.session, next);
}

// Steps 15 and 16.
void AfterDay(SeasonRun& run) {
  Session& session = run.session;
  InjuryReport(session);
  session.ui.ShowProgress("Updating Lineups");
  SetCPURoster(session, run.autoSim);
  Config& c = session.config;
  if (c.CurrWeek == kSeasonOverWeek && c.CurrDay == "Monday") {
    c.Stage = kStageSeasonOver;
    session.Db().Exec(
        "UPDATE Config SET Stage = 'Season Over', CurrWeek = ?, CurrYear = ? WHERE IdConfig = 0",
        c.CurrWeek, c.CurrYear);
  }
}

// Steps 2 to 16; false when the day stopped.
bool PlayDay(SeasonRun& run, bool automatic) {
  Session& session = run.session;
  const int week = session.config.CurrWeek;
  const std::string day = session.config.CurrDay;
  if (week == 5) {
    BringInboxUpTo(session, week);
    WeekFiveEvents(run);
    ChangeWeek(run, week, day);
  } else {
    SetUpLineups(run, automatic);
    if (!PlayGames(run, automatic, week, day)) return false;
    if (IsLastDayOfWeek(week, day)) {
      EndWeek(run, week, day);
      ChangeWeek(run, week, day);
    } else {
      WriteCalendar(session, NextDay(week, day));
    }
  }
  AfterDay(run);
  if (run.keepWithDay) run.keepWithDay(session);
  return true;
}

// What the session holds in memory of the dynasty, to be put back when a
// step keeps nothing of its day.
struct MemoryOfDay {
  explicit MemoryOfDay(Session& session)
      : stats(std::make_unique<PlayerStatsStore>(session.seasonStats)), inbox(session.inbox) {}

  void Restore(SeasonRun& run) {
    Session& session = run.session;
    session.seasonStats = *stats;
    session.inbox = inbox;
    session.config = LoadConfig(session.Db());
    run.played.clear();
    session.ui.HideProgress();
  }

  std::unique_ptr<PlayerStatsStore> stats;  // large: kept off the stack
  Inbox inbox;
};

DayOutcome RunStep(SeasonRun& run, bool automatic) {
  Session& session = run.session;
  SettleWeekFive(session);
  if (session.config.Stage != kStageSeason || session.config.CurrWeek > kLastSeasonWeek) {
    return DayOutcome::kStopped;
  }
  // The day's stream depends on the dynasty's seed and the day alone, and
  // the day plays on a fresh game model and result tables, so that nothing
  // of the previous day's last game carries into it: a season replays
  // however it is cut into runs.
  SeedForPlace(session, "day");
  run.game = Game(session, run.game.screen);
  run.day = DayResults();
  MemoryOfDay memory(session);
  const CalendarDay today{session.config.CurrWeek, session.config.CurrDay};
  DayOutcome outcome = DayOutcome::kPlayed;
  try {
    Store::Transaction tx(session.Db());
    if (!automatic && run.cpuSetsUserTeam) {
      SetCoachRoles(session, session.humanSchool);
      SetTeamLineup(session, session.humanSchool, 0);
    }
    // A refusal rolls back with the transaction: nothing has changed.
    if (!automatic && !PassDayGuards(run)) return DayOutcome::kStopped;
    if (PlayDay(run, automatic)) {
      tx.Commit();
    } else {
      outcome = DayOutcome::kStopped;
    }
  } catch (const ListedGamesFailed&) {
    outcome = DayOutcome::kFailed;
  } catch (const std::exception& error) {
    session.ui.Message("The error occured in SimDay. The error code is " +
                       std::to_string(ErrorCode(error)) + ". " + error.what() +
                       " Nothing of this day was kept.");
    outcome = DayOutcome::kFailed;
  }
  if (outcome != DayOutcome::kPlayed) memory.Restore(run);
  session.ui.HideProgress();
  if (!automatic) {
    // The list stays on the day just played and shows its results.
    run.screen.shown = today;
    ShowDay(session, run.screen);
  }
  return outcome;
}

}  // namespace

DayOutcome SimDay(SeasonRun& run) {
  return RunStep(run, false);
}

DayOutcome AutoSimDay(SeasonRun& run) {
  return RunStep(run, true);
}

}  // namespace courtmere
