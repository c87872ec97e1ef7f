// One game of the engine: RunEngine whole, loading both teams from the
// store, unattended, without files and with its box score and log written.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

#include "../cli/exhibition_setup.h"
#include "engine/run_engine.h"
#include "engine/team_loader.h"
#include "platform/scripted_ui.h"
#include "store/blank_store.h"
#include "store/session.h"

namespace courtmere {
namespace {

// Two seeded schools in a store of their own, for the whole run.
class EngineWorld {
 public:
  EngineWorld()
      : folder_(std::filesystem::temp_directory_path() /
                ("courtmere-engine-bench-" +
                 std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()))),
        session_(ProgramFolder(folder_), Rng(20011), ui_) {
    std::filesystem::create_directories(folder_);
    BuildBlankStore(session_.folder.Store());
    session_.store = std::make_unique<Store>(session_.folder.Store());
    pair_ = cli::PrepareExhibition(session_, "", "");
  }
  ~EngineWorld() {
    session_.store.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  // In clock mode, as a dynasty plays, the generator takes the clock now
  // and then; in fixed mode only its counter.
  // The store's part of a game alone: both teams' charts, staff and rosters.
  void Load(benchmark::State& state) {
    Game game(session_);
    game.Home().School = pair_.home;
    game.Away().School = pair_.away;
    for (auto _ : state) {
      for (Side side : {Side::Home, Side::Away}) LoadDepthAndTactics(game, side);
      LoadCoachValues(game);
      for (Side side : {Side::Home, Side::Away}) LoadRoster(game, side);
      benchmark::DoNotOptimize(game.Home().RosterCount + game.Away().RosterCount);
    }
  }

  void Run(benchmark::State& state, bool files, bool clockMode = false) {
    session_.rng = clockMode ? Rng() : Rng(20011);
    Store::Transaction tx(session_.Db());
    Game game(session_);
    DayResults day;
    GameRequest request;
    request.HomeTeam = pair_.home;
    request.AwayTeam = pair_.away;
    request.GameType = "Exhibition";
    request.BatchIndex = 1;
    request.GameNo = 1;
    request.WriteFiles = files;
    for (auto _ : state) {
      std::string box;
      std::string log = files ? "log" : "none";
      benchmark::DoNotOptimize(RunEngine(game, day, request, box, log));
      state.PauseTiming();
      // The injured heal between games, so that the workload stays the same.
      session_.Db().Exec(
          "UPDATE Player SET TimeInjured = 0, Health = 'Good' WHERE Health <> 'Good'");
      state.ResumeTiming();
    }
    tx.Commit();
  }

 private:
  std::filesystem::path folder_;
  ScriptedUi ui_;
  Session session_;
  cli::SchoolPair pair_;
};

EngineWorld& World() {
  static EngineWorld world;
  return world;
}

void BM_GameWithoutFiles(benchmark::State& state) {
  World().Run(state, false);
}
BENCHMARK(BM_GameWithoutFiles)->Unit(benchmark::kMicrosecond);

void BM_GameLoadTeams(benchmark::State& state) {
  World().Load(state);
}
BENCHMARK(BM_GameLoadTeams)->Unit(benchmark::kMicrosecond);

void BM_GameWithoutFilesClockMode(benchmark::State& state) {
  World().Run(state, false, true);
}
BENCHMARK(BM_GameWithoutFilesClockMode)->Unit(benchmark::kMicrosecond);

void BM_GameWithBoxScoreAndLog(benchmark::State& state) {
  World().Run(state, true);
}
BENCHMARK(BM_GameWithBoxScoreAndLog)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace courtmere
