// courtmere-cli bench: a fixed, seeded workload of games with no files, and
// a signature of every result. A change of game behaviour changes the
// signature; a change that keeps it has kept the behaviour.
#include <fmt/format.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <stdexcept>

#include "bench_support.h"
#include "cli_context.h"
#include "engine/box_score.h"
#include "engine/run_engine.h"
#include "exhibition_setup.h"
#include "platform/scripted_ui.h"
#include "store/blank_store.h"

namespace courtmere::cli {

namespace {

constexpr uint64_t kBenchSeed = 20011;

void RunBench(CliContext& context, int games) {
  ScratchFolder folder;
  ScriptedUi ui;
  Session session(ProgramFolder(folder.Path()), Rng(context.seed.value_or(kBenchSeed)), ui);
  BuildBlankStore(session.folder.Store());
  session.store = std::make_unique<Store>(session.folder.Store());
  const SchoolPair pair = PrepareExhibition(session, "", "");
  Store& store = session.Db();

  Signature signature;
  DayResults day;
  Game game(session);
  GameRequest request;
  request.HomeTeam = pair.home;
  request.AwayTeam = pair.away;
  request.GameType = "Exhibition";
  request.WriteFiles = false;
  // The games run in one transaction, as a day's batch does.
  Store::Transaction tx(store);
  // Only the games are timed: the signature and the healing below are the
  // benchmark's own work, not the engine's.
  std::chrono::steady_clock::duration played{};
  for (int g = 0; g < games; ++g) {
    request.BatchIndex = g % 150 + 1;
    request.GameNo = g + 1;
    std::string box;
    std::string log = "none";
    const auto start = std::chrono::steady_clock::now();
    const int result = RunEngine(game, day, request, box, log);
    played += std::chrono::steady_clock::now() - start;
    if (result != 1) {
      throw std::runtime_error("game " + std::to_string(g + 1) + " could not be played");
    }
    signature.Add(
        fmt::format("{} {} {} {}", pair.home, game.Home().Score, pair.away, game.Away().Score));
    for (const std::string& line : FormatBoxScore(game)) signature.Add(line);
    // The injured heal between games, so that the workload stays the same.
    store.Exec("UPDATE Player SET TimeInjured = 0, Health = 'Good' WHERE Health <> 'Good'");
  }
  const double seconds = std::chrono::duration<double>(played).count();
  tx.Commit();
  fmt::print("{} at {}: {} games\n", pair.away, pair.home, games);
  fmt::print("signature {:016x} games {} seconds {:.3f} games_per_second {:.0f}\n",
             signature.Value(), games, seconds, games / seconds);
}

}  // namespace

void AddBenchCommand(CLI::App& app, CliContext& context) {
  auto games = std::make_shared<int>(2000);
  CLI::App* cmd = app.add_subcommand(
      "bench", "Play a fixed, seeded workload of games without files and print its signature");
  cmd->add_option("--games", *games, "Games to play (default 2000)")->check(CLI::PositiveNumber);
  cmd->callback([&context, games] { RunBench(context, *games); });
}

}  // namespace courtmere::cli
