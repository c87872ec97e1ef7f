// courtmere-cli bench-season: with a fixed seed, from a blank store, a new
// dynasty, Start Season and a whole season played to "Season Over" with box
// scores off, the user's recruiting week running (he lists no recruit). Its last line is the
// signature of every schedule row's result and of the final poll, the number of games, and the
// seconds the season itself took. A change of behaviour anywhere in the season changes the
// signature.
#include <fmt/format.h>

#include <chrono>
#include <stdexcept>

#include "bench_dynasty.h"
#include "cli_context.h"
#include "league/start_season.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/schedule_tables.h"
#include "season/season_run.h"
#include "store/season_stats.h"

namespace courtmere::cli {

namespace {

constexpr uint64_t kSeasonBenchSeed = 20021;

// Plays day after day until the season is over; returns the days played.
int PlaySeason(SeasonRun& run) {
  Session& session = run.session;
  int days = 0;
  while (session.config.Stage == kStageSeason) {
    SettleWeekFive(session);
    if (SimDay(run) != DayOutcome::kPlayed) {
      throw std::runtime_error(fmt::format("the day step stopped in week {}, {}",
                                           session.config.CurrWeek, session.config.CurrDay));
    }
    ++days;
  }
  SaveSeasonStats(session);
  return days;
}

int SignSchedule(Store& store, Signature& signature) {
  int games = 0;
  for (const std::string& table : SeasonScheduleTables(store)) {
    for (Rows r = store.Query("SELECT GameNo, HomeTeam, AwayTeam, HomeScore, AwayScore FROM " +
                              table + " ORDER BY GameNo");
         r.Next();) {
      signature.Add(
          fmt::format("{} {} {} {} {}", r.Int(0), r.Text(1), r.Text(2), r.Int(3), r.Int(4)));
      if (r.Int(3) != 0) ++games;
    }
  }
  return games;
}

void SignPoll(Store& store, Signature& signature) {
  for (Rows r =
           store.Query("SELECT TeamRanking, SchoolName FROM Ranking WHERE TeamRanking > 0 ORDER BY "
                       "TeamRanking, SchoolName");
       r.Next();) {
    signature.Add(fmt::format("{} {}", r.Int(0), r.Text(1)));
  }
}

void RunBenchSeason(CliContext& context) {
  BenchDynasty dynasty(context.seed.value_or(kSeasonBenchSeed));
  Session& session = dynasty.session;
  if (StartSeason(session) != SeasonStart::kStarted) {
    throw std::runtime_error("Start Season was refused");
  }
  SeasonRun& run = dynasty.run;
  const auto start = std::chrono::steady_clock::now();
  const int days = PlaySeason(run);
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  Store& store = session.Db();
  Signature signature;
  const int games = SignSchedule(store, signature);
  SignPoll(store, signature);
  fmt::print("{} days to {}, week {}\n", days, session.config.Stage, session.config.CurrWeek);
  fmt::print("signature {:016x} games {} seconds {:.3f}\n", signature.Value(), games, seconds);
}

}  // namespace

void AddBenchSeasonCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "bench-season",
      "From a blank store: a new dynasty, Start Season and a whole season, seeded, without box "
      "scores; prints the signature of every result");
  cmd->callback([&context] { RunBenchSeason(context); });
}

}  // namespace courtmere::cli
