// courtmere-cli autosim: Start Auto Sim, answering Yes: the computer plays
// the user's team day after day until week 15.
#include <fmt/format.h>

#include "season/auto_sim.h"
#include "season_command.h"

namespace courtmere::cli {

namespace {

constexpr int kAutoSimEndWeek = 15;

void RunAutoSim(CliContext& context) {
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  Session& session = run->session;
  RequireSeasonStage(session);
  // The auto-sim does not play past week 15; the menu entry is closed then.
  if (session.config.CurrWeek >= kAutoSimEndWeek) {
    session.ui.Message("The auto sim runs only until week 15.");
    throw Refusal{};
  }
  context.ui.BeginRun("Auto sim");
  const int days = StartAutoSim(*run);
  context.ui.EndRun();
  const Config& c = session.config;
  if (c.CurrWeek < kAutoSimEndWeek) throw Refusal{};
  fmt::print("{} day(s) played; now week {}, {}, {}\n", days, c.CurrWeek, c.CurrDay, c.CurrYear);
}

}  // namespace

void AddAutoSimCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "autosim", "Start Auto Sim: the computer runs the user's team until week 15");
  cmd->callback([&context] { RunAutoSim(context); });
}

}  // namespace courtmere::cli
