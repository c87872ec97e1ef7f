// courtmere-cli start-season: Start Season from the offseason, answering Yes
// to its warning.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/start_season.h"

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
  fmt::print("Recruits {}, walk-ons {}\n",
             store.ScalarInt("SELECT count(*) FROM Recruit").value_or(0),
             store
                 .ScalarInt("SELECT count(*) FROM Player WHERE PlayerYear = 'Senior' AND "
                            "Id >= (SELECT min(Id) FROM Recruit)")
                 .value_or(0));
}

}  // namespace

void AddStartSeasonCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "start-season", "Start the season (Off Season > Start), answering Yes to its warning");
  cmd->callback([&context] { RunStartSeason(context); });
}

}  // namespace courtmere::cli
