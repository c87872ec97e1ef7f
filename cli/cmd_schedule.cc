// courtmere-cli schedule: the season's schedule rows, played or not, from
// every schedule table, filtered by week or conference; or, with --school,
// that school's schedule as the desktop's schedule screen shows it.
#include <fmt/format.h>

#include <algorithm>

#include "cli_context.h"
#include "schedule/calendar_slots.h"
#include "screens/team_schedule.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct ScheduleOptions {
  std::string school;
  int week = 0;
  std::string conference;
};

struct Game {
  int week;
  std::string day;
  int gameNo;
  std::string home;
  std::string away;
  std::string type;
  int homeScore;
  int awayScore;
};

// The tables to read, with the condition their rows must meet: a
// conference's own table and its schools' non-conference games, or all ten.
std::vector<std::pair<std::string, std::string>> Sources(Store& store,
                                                         const std::string& conference) {
  std::vector<std::pair<std::string, std::string>> sources;
  for (Rows rows = store.Query("SELECT Id, Conference FROM League ORDER BY Id"); rows.Next();) {
    if (conference.empty() || rows.Text(1) == conference) {
      sources.push_back({ConferenceTable(rows.Int(0)), ""});
    }
  }
  sources.push_back(
      {"NonConfSchedule", conference.empty() ? "" : " AND (HomeConf = ? OR AwayConf = ?)"});
  return sources;
}

std::vector<Game> ReadGames(Store& store, const ScheduleOptions& o) {
  std::vector<Game> games;
  for (const auto& [table, condition] : Sources(store, o.conference)) {
    const std::string sql =
        "SELECT Week, GameDay, GameNo, HomeTeam, AwayTeam, GameType, HomeScore, AwayScore FROM " +
        table + " WHERE (? = 0 OR Week = ?)" + condition;
    Rows rows = condition.empty() ? store.Query(sql, o.week, o.week)
                                  : store.Query(sql, o.week, o.week, o.conference, o.conference);
    while (rows.Next()) {
      games.push_back({rows.Int(0), rows.Text(1), rows.Int(2), rows.Text(3), rows.Text(4),
                       rows.Text(5), rows.Int(6), rows.Int(7)});
    }
  }
  std::sort(games.begin(), games.end(), [](const Game& a, const Game& b) {
    return std::tuple(a.week, DayOrder(a.day), a.gameNo) <
           std::tuple(b.week, DayOrder(b.day), b.gameNo);
  });
  return games;
}

void CheckOptions(Session& session, const ScheduleOptions& o) {
  Store& store = session.Db();
  if (!o.conference.empty() &&
      !store.ScalarInt("SELECT 1 FROM League WHERE Conference = ?", o.conference)) {
    session.ui.Message("League not found");
    throw Refusal{};
  }
  if (!o.school.empty() && !store.ScalarInt("SELECT 1 FROM Team WHERE SchoolName = ? UNION ALL "
                                            "SELECT 1 FROM ScrubTeam WHERE SchoolName = ?",
                                            o.school, o.school)) {
    session.ui.Message(fmt::format("{} is not a school of this dynasty.", o.school));
    throw Refusal{};
  }
}

// One school's season as the desktop's schedule screen lists it: every game
// it plays, the national tournaments' included, in calendar order, with the
// site, the opponent and the result from the school's side.
void PrintSchoolSchedule(Store& store, const ScheduleOptions& o) {
  std::vector<ScheduleGame> games = TeamSchedule(store, o.school);
  std::erase_if(games, [&o](const ScheduleGame& g) { return o.week != 0 && g.Week != o.week; });
  fmt::print("{} Schedule\n", o.school);
  if (games.empty()) {
    fmt::print("No Games\n");
    return;
  }
  TextTable table;
  table.AddColumn("Week", "", TextTable::kRight);
  table.AddColumn("Day", "", TextTable::kLeft);
  table.AddColumn("Game", "", TextTable::kRight);
  table.AddColumn("Site", "", TextTable::kLeft);
  table.AddColumn("Opponent", "", TextTable::kLeft);
  table.AddColumn("Type", "", TextTable::kLeft);
  table.AddColumn("Result", "", TextTable::kLeft);
  for (const ScheduleGame& g : games) {
    table.AddRow({std::to_string(g.Week), g.Day, std::to_string(g.GameNo), g.Site, g.Opponent,
                  g.GameType, ResultText(g)});
  }
  fmt::print("{}", table.Render());
}

void RunSchedule(CliContext& context, const ScheduleOptions& options) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  CheckOptions(session, options);
  if (!options.school.empty()) {
    PrintSchoolSchedule(session.Db(), options);
    return;
  }
  const std::vector<Game> games = ReadGames(session.Db(), options);
  if (games.empty()) {
    fmt::print("No Games\n");
    return;
  }
  TextTable table;
  table.AddColumn("Week", "", TextTable::kRight);
  table.AddColumn("Day", "", TextTable::kLeft);
  table.AddColumn("Game", "", TextTable::kRight);
  table.AddColumn("Home", "", TextTable::kLeft);
  table.AddColumn("Away", "", TextTable::kLeft);
  table.AddColumn("Type", "", TextTable::kLeft);
  table.AddColumn("Score", "", TextTable::kRight);
  for (const Game& g : games) {
    const std::string score =
        g.homeScore == 0 ? "" : fmt::format("{}-{}", g.homeScore, g.awayScore);
    table.AddRow(
        {std::to_string(g.week), g.day, std::to_string(g.gameNo), g.home, g.away, g.type, score});
  }
  fmt::print("{}", table.Render());
}

}  // namespace

void AddScheduleCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<ScheduleOptions>();
  CLI::App* cmd = app.add_subcommand(
      "schedule", "List the season's games, played or not, with the score of those played");
  CLI::Option* school = cmd->add_option(
      "--school", options->school,
      "One school's games as its schedule screen lists them, the national tournaments' included");
  cmd->add_option("--week", options->week, "Only this week's games")->check(CLI::Range(1, 21));
  cmd->add_option("--conference", options->conference,
                  "Only this conference's games and its schools' non-conference games")
      ->excludes(school);
  cmd->callback([&context, options] { RunSchedule(context, *options); });
}

}  // namespace courtmere::cli
