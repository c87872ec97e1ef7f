// courtmere-cli sim: Sim Day, pressed once or many times, answering Yes to
// every question. A guard's refusal prints its message and ends the run with
// status 2; the days played before it stay played.
#include <fmt/format.h>

#include "league/national_tourneys.h"
#include "league/ranking_weeks.h"
#include "season/calendar.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/schedule_tables.h"
#include "season_command.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct SimOptions {
  int days = 1;
  int toWeek = 0;
  bool season = false;
  bool ownLineup = false;
};

// Where the run ends: the calendar day it stops at (the season's end when
// neither a week nor a count of days is given).
bool RunOver(const Config& c, const SimOptions& o, int played) {
  if (c.Stage != kStageSeason || c.CurrWeek > kLastSeasonWeek) return true;
  if (o.season) return false;
  if (o.toWeek > 0) return c.CurrWeek >= o.toWeek;
  return played >= o.days;
}

// The day steps the run will take, for its bar.
int PlannedDays(const Config& c, const SimOptions& o) {
  if (!o.season && o.toWeek == 0) return o.days;
  const int target = o.season ? kSeasonOverWeek : o.toWeek;
  int days = 0;
  for (CalendarDay d{c.CurrWeek, c.CurrDay}; d.week < target; d = NextDay(d.week, d.day)) ++days;
  return days;
}

int PlayedGamesOfWeek(Store& store, int week) {
  int64_t games = 0;
  for (const std::string& table : SeasonScheduleTables(store)) {
    games +=
        store
            .ScalarInt("SELECT count(*) FROM " + table + " WHERE Week = ? AND HomeScore <> 0", week)
            .value_or(0);
  }
  return static_cast<int>(games);
}

// A week's line: its games and the poll released at its end, if any.
void PrintWeek(Store& store, int week) {
  const std::string top = PollAtEndOf(week) ? PollTopFive(store) : std::string();
  fmt::print("Week {:>2}: {:>4} games; {}\n", week, PlayedGamesOfWeek(store, week),
             top.empty() ? "no poll" : "poll: " + top);
}

// The day just played as the Today's Games screen lists it.
void PrintDay(const DayScreen& screen) {
  fmt::print("{}, {}\n", screen.Caption(), screen.shown.day);
  if (screen.rows.empty()) {
    for (const std::string& line : screen.notice) fmt::print("{}\n", line);
    return;
  }
  TextTable table;
  for (const char* column : kDayColumns) {
    const bool number = std::string_view(column) == "Score";
    table.AddColumn(column, "", number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const DayRow& r : screen.rows) {
    table.AddRow({r.HomeShown, r.Played() ? std::to_string(r.HomeScore) : "", r.AwayShown,
                  r.Played() ? std::to_string(r.AwayScore) : "", r.HomePoints, r.HomeRebounds,
                  r.AwayPoints, r.AwayRebounds});
  }
  fmt::print("{}", table.Render());
}

void CheckOptions(Session& session, const SimOptions& o) {
  const int week = session.config.CurrWeek;
  if (o.days < 1) {
    session.ui.Message("The number of days must be at least 1.");
    throw Refusal{};
  }
  if (o.toWeek != 0 && (o.toWeek <= week || o.toWeek > kSeasonOverWeek)) {
    session.ui.Message(fmt::format("The week to reach must lie after week {} and be at most {}.",
                                   week, kSeasonOverWeek));
    throw Refusal{};
  }
}

void RunSim(CliContext& context, const SimOptions& o) {
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  Session& session = run->session;
  RequireSeasonStage(session);
  CheckOptions(session, o);
  // Design decision: the tool has no staff or depth-chart screen, so unless
  // the user keeps his own (set by the desktop program or a loaded save), the
  // computer gives his coaches their roles and sets his chart before each
  // day, as under the auto-sim; the guards still judge the result and the
  // questions stand.
  run->cpuSetsUserTeam = !o.ownLineup;
  SettleWeekFive(session);
  const int planned = PlannedDays(session.config, o);
  context.ui.BeginRun("Simming the season");
  int played = 0;
  while (!RunOver(session.config, o, played)) {
    const int week = session.config.CurrWeek;
    context.ui.RunProgress(played, planned,
                           fmt::format("week {} {}", week, session.config.CurrDay));
    if (SimDay(*run) != DayOutcome::kPlayed) {
      context.ui.EndRun();
      throw Refusal{};
    }
    ++played;
    SettleWeekFive(session);
    if (session.config.CurrWeek != week) {
      context.ui.EndRun();
      PrintWeek(session.Db(), week);
      context.ui.BeginRun("Simming the season");
    }
  }
  context.ui.EndRun();
  if (played == 1) PrintDay(run->screen);
  const Config& c = session.config;
  fmt::print("{} day(s) played; now week {}, {}, {}; stage {}\n", played, c.CurrWeek, c.CurrDay,
             c.CurrYear, c.Stage);
  // A season played to its end names the NCT's champion.
  if (c.CurrWeek == kSeasonOverWeek) {
    if (const std::optional<std::string> champion = NctChampion(session.Db())) {
      fmt::print("NCT champion: {}\n", *champion);
    }
  }
}

}  // namespace

void AddSimCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<SimOptions>();
  CLI::App* cmd = app.add_subcommand(
      "sim", "Sim Day: play the dynasty's next day (or several), answering Yes to every question");
  CLI::Option* days = cmd->add_option("--days", options->days, "Days to play (default 1)");
  CLI::Option* week =
      cmd->add_option("--to-week", options->toWeek, "Play until this week is reached");
  CLI::Option* season =
      cmd->add_flag("--season", options->season, "Play to the end of the season (Season Over)");
  cmd->add_flag("--own-lineup", options->ownLineup,
                "Keep the user's coaches' roles and depth chart as they stand (default: the "
                "computer sets them before each day, as under the auto-sim)");
  days->excludes(week)->excludes(season);
  week->excludes(season);
  cmd->callback([&context, options] { RunSim(context, *options); });
}

}  // namespace courtmere::cli
