// courtmere-cli bench-year: with a fixed seed, from a blank store, a new
// dynasty and three whole years (season, End Season, draft, offseason,
// training, Start Season), box scores off, the user's school recruiting as
// a computer team. Prints each year's seconds and
// the store's size, the time each stage took (wall and processor), and last the signature of every
// player row, the draft and the schedule at the end, the years and the seconds of the three.
#include <fmt/format.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench_dynasty.h"
#include "cli_context.h"
#include "league/start_season.h"
#include "offseason/career_steps.h"
#include "offseason/dynasty_year.h"
#include "season/season_run.h"

namespace courtmere::cli {

namespace {

constexpr uint64_t kYearBenchSeed = 20026;
constexpr int kYears = 3;

void SignStore(Store& store, Signature& signature) {
  for (Rows r = store.Query(
           "SELECT Id, Team, PlayerYear, Overall, Potential, Jumpshot, Endurance FROM Player ORDER "
           "BY Id");
       r.Next();) {
    signature.Add(fmt::format("{} {} {} {:.4f} {} {} {}", r.Int(0), r.Text(1), r.Text(2),
                              r.Double(3), r.Int(4), r.Int(5), r.Int(6)));
  }
  for (Rows r = store.Query("SELECT Pick, Team, Name FROM NBADraft ORDER BY Pick"); r.Next();) {
    signature.Add(fmt::format("{} {} {}", r.Int(0), r.Text(1), r.Text(2)));
  }
  for (Rows r =
           store.Query("SELECT GameNo, HomeTeam, AwayTeam FROM NonConfSchedule ORDER BY GameNo");
       r.Next();) {
    signature.Add(fmt::format("{} {} {}", r.Int(0), r.Text(1), r.Text(2)));
  }
}

struct StageTime {
  double wall = 0;
  double processor = 0;
};

// One command of the year, its time added to the stage it started from.
void TimedStage(SeasonRun& run, CareerSteps& career, std::map<std::string, StageTime>& stages) {
  const std::string stage = run.session.config.Stage;
  const auto start = std::chrono::steady_clock::now();
  const std::clock_t cpu = std::clock();
  if (!AdvanceStage(run, career)) throw std::runtime_error("stopped in " + stage);
  StageTime& time = stages[stage];
  time.wall += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  time.processor += static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
}

// The year as PlayYear runs it, stage by stage.
void PlayTimedYear(SeasonRun& run, CareerSteps& career, std::map<std::string, StageTime>& stages) {
  const Config& c = run.session.config;
  if (c.Stage == kStagePostTraining) TimedStage(run, career, stages);
  while (c.Stage != kStagePostTraining) TimedStage(run, career, stages);
  TimedStage(run, career, stages);
}

void RunBenchYear(CliContext& context) {
  BenchDynasty dynasty(context.seed.value_or(kYearBenchSeed));
  Session& session = dynasty.session;
  SeasonRun& run = dynasty.run;
  dynasty.recruiting.SetUserRecruitsAsComputer(true);
  const std::unique_ptr<CareerSteps> career = HeadlessCareer(CoachPolicy::kStay);
  double total = 0;
  std::map<std::string, StageTime> stages;
  for (int y = 1; y <= kYears; ++y) {
    const auto start = std::chrono::steady_clock::now();
    PlayTimedYear(run, *career, stages);
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    total += seconds;
    fmt::print("year {} ({}): {:.3f} s, store {} KB\n", y, session.config.CurrYear, seconds,
               std::filesystem::file_size(session.folder.Store()) / 1024);
  }
  for (const auto& [stage, time] : stages) {
    fmt::print("  {:<16} {:7.3f} s wall {:7.3f} s processor\n", stage, time.wall, time.processor);
  }
  Signature signature;
  SignStore(session.Db(), signature);
  fmt::print("signature {:016x} years {} seconds {:.3f}\n", signature.Value(), kYears, total);
}

}  // namespace

void AddBenchYearCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "bench-year",
      "From a blank store: a new dynasty and three whole years, seeded, without box scores; "
      "prints the signature of the players, the draft and the schedule at the end");
  cmd->callback([&context] { RunBenchYear(context); });
}

}  // namespace courtmere::cli
