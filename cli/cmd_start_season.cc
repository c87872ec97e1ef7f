// courtmere-cli start-season: Start Season from the offseason, answering Yes
// to its warning.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/start_season.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunStartSeason(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  // The desktop offers Start Season only in the offseason; the tool says so.
  if (session.config.Stage != kStagePostTraining) {
    session.ui.Message(fmt::format(
        "The season can only be started in the stage Post Training; the dynasty stands in {}.",
        session.config.Stage));
    throw Refusal{};
  }
  if (StartSeason(session) != SeasonStart::kStarted) throw Refusal{};
  Store& store = session.Db();
  const Config& c = session.config;
  fmt::print("Season {} started at {}: week {}, {}, stage {}\n", c.CurrYear, school, c.CurrWeek,
             c.CurrDay, c.Stage);
  TextTable pool;
  pool.AddColumn("Region", "", TextTable::kLeft);
  pool.AddColumn("Recruits", "", TextTable::kRight);
  for (Rows rows = store.Query(
           "SELECT Region, count(*) FROM Recruit GROUP BY Region ORDER BY CASE Region WHEN 'West' "
           "THEN 1 WHEN 'Midwest' THEN 2 WHEN 'East' THEN 3 ELSE 4 END");
       rows.Next();) {
    pool.AddRow({rows.Text(0), rows.Text(1)});
  }
  fmt::print("\n{}", pool.Render());
  fmt::print(
      "\nScholarships to offer: {}\n",
      store.ScalarInt("SELECT Scholarships FROM Team WHERE SchoolName = ?", school).value_or(0));
}

}  // namespace

void AddStartSeasonCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "start-season", "Start the season (Off Season > Start), answering Yes to its warning");
  cmd->callback([&context] { RunStartSeason(context); });
}

}  // namespace courtmere::cli
