// courtmere-cli dynasty --years N: plays N whole years from where the
// dynasty stands (the season, End Season, the draft, Begin Offseason, Train
// Players, Start Season), answering Yes to every question, the user's
// lineup set by the computer as under the auto-sim and his recruiting done
// as a computer team's. One line a year: the
// champion, the user's record and his recruiting class's rank.
#include <fmt/format.h>

#include <memory>
#include <stdexcept>

#include "league/head_coach.h"
#include "offseason/dynasty_year.h"
#include "offseason_command.h"
#include "season/season_session.h"
#include "season_command.h"
#include "store/season_stats.h"

namespace courtmere::cli {

namespace {

void RunDynasty(CliContext& context, int years) {
  if (years < 1) Refuse("--years must be at least 1.");
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  run->cpuSetsUserTeam = true;
  // Nobody recruits for the user in a headless run: his school recruits as
  // a computer team, so that it signs a class and the dynasty stays alive.
  context.recruiting.SetUserRecruitsAsComputer(true);
  Session& session = run->session;
  const std::string school = HumanSchool(session.Db());
  for (int y = 1; y <= years; ++y) {
    context.ui.BeginRun(fmt::format("Year {} of {}", y, years));
    YearSummary summary;
    try {
      summary = PlayYear(*run, ToolCareerSteps());
    } catch (const std::runtime_error& e) {
      context.ui.EndRun();
      Refuse(fmt::format("Year {} of {}: {}.", y, years, e.what()));
    }
    context.ui.EndRun();
    fmt::print("{}: champion {}; {} {}-{}; class rank {}\n", summary.year,
               summary.champion.empty() ? "-" : summary.champion, school, summary.wins,
               summary.losses,
               summary.classRank == 0 ? std::string("-") : std::to_string(summary.classRank));
    std::fflush(stdout);
  }
  const Config& c = session.config;
  fmt::print("Now {}, week {}, {}, stage {}\n", c.CurrYear, c.CurrWeek, c.CurrDay, c.Stage);
}

}  // namespace

void AddDynastyCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "dynasty", "Play whole years from where the dynasty stands, answering Yes to everything");
  auto years = std::make_shared<int>(1);
  cmd->add_option("--years", *years, "Years to play")->required();
  cmd->callback([&context, years] { RunDynasty(context, *years); });
}

}  // namespace courtmere::cli
