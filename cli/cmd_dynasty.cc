// courtmere-cli dynasty --years N: plays N whole years from where the
// dynasty stands (the season, End Season, the draft, Begin Offseason, Train
// Players, Start Season), answering Yes to every question, the user's
// lineup set by the computer as under the auto-sim and his recruiting done
// as a computer team's (--user-recruiting none: not at all), the job list
// answered by --coach-policy. One line a year: the
// champion, the user's record and his recruiting class's rank.
#include <fmt/format.h>

#include <map>
#include <memory>
#include <stdexcept>

#include "offseason/career_steps.h"
#include "offseason/dynasty_year.h"
#include "offseason_command.h"
#include "season/season_session.h"
#include "season_command.h"
#include "store/season_stats.h"

namespace courtmere::cli {

namespace {

struct DynastyOptions {
  int years = 1;
  CoachPolicy policy = CoachPolicy::kStay;
  bool userRecruits = true;
};

void RunDynasty(CliContext& context, const DynastyOptions& options) {
  const int years = options.years;
  if (years < 1) Refuse("--years must be at least 1.");
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  run->cpuSetsUserTeam = true;
  // Nobody recruits for the user in a headless run: unless told not to, his
  // school recruits as a computer team, so that it signs a class of its own.
  context.recruiting.SetUserRecruitsAsComputer(options.userRecruits);
  const std::unique_ptr<CareerSteps> career = HeadlessCareer(options.policy);
  Session& session = run->session;
  for (int y = 1; y <= years; ++y) {
    context.ui.BeginRun(fmt::format("Year {} of {}", y, years));
    YearSummary summary;
    try {
      summary = PlayYear(*run, *career);
    } catch (const std::runtime_error& e) {
      context.ui.EndRun();
      Refuse(fmt::format("Year {} of {}: {}.", y, years, e.what()));
    }
    context.ui.EndRun();
    std::string career;
    if (summary.fired) career += "; fired";
    if (!summary.moved.empty()) career += "; moves to " + summary.moved;
    fmt::print("{}: champion {}; {} {}-{}; class rank {}{}\n", summary.year,
               summary.champion.empty() ? "-" : summary.champion, summary.school, summary.wins,
               summary.losses,
               summary.classRank == 0 ? std::string("-") : std::to_string(summary.classRank),
               career);
    std::fflush(stdout);
  }
  const Config& c = session.config;
  fmt::print("Now {}, week {}, {}, stage {}\n", c.CurrYear, c.CurrWeek, c.CurrDay, c.Stage);
}

}  // namespace

void AddDynastyCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "dynasty", "Play whole years from where the dynasty stands, answering Yes to everything");
  auto options = std::make_shared<DynastyOptions>();
  cmd->add_option("--years", options->years, "Years to play")->required();
  const std::map<std::string, CoachPolicy> policies = {{"stay", CoachPolicy::kStay},
                                                       {"climb", CoachPolicy::kClimb}};
  cmd->add_option("--coach-policy", options->policy,
                  "stay: keep the school (a fired coach takes the best offer); climb: take the "
                  "most prestigious school that offers")
      ->transform(CLI::CheckedTransformer(policies, CLI::ignore_case));
  const std::map<std::string, bool> recruiting = {{"computer", true}, {"none", false}};
  cmd->add_option("--user-recruiting", options->userRecruits,
                  "computer: the user's school recruits as a computer team; none: not at all")
      ->transform(CLI::CheckedTransformer(recruiting, CLI::ignore_case));
  cmd->callback([&context, options] { RunDynasty(context, *options); });
}

}  // namespace courtmere::cli
