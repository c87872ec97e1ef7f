// A whole season headless, as the day step plays it: from Thursday of week 1
// of a freshly started dynasty to "Season Over", every game of the schedule
// through the engine, every week's events, box scores off. The started
// season is made once; each iteration starts from a copy of it.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench_program.h"
#include "league/start_season.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/season_run.h"
#include "season/season_session.h"
#include "store/menu_gate.h"

namespace courtmere {
namespace {

const std::filesystem::path& StartedSeasonStore() {
  static const std::filesystem::path file = [] {
    const std::filesystem::path f =
        std::filesystem::temp_directory_path() / "courtmere-bench-started-season.dat";
    BenchProgram program("season-template", NewDynastyStore(), 1);
    MenuGate(program.session());
    if (StartSeason(program.session()) != SeasonStart::kStarted) {
      throw std::runtime_error("Start Season");
    }
    program.session().Db().Exec("UPDATE Config SET NumPlayers = 0 WHERE IdConfig = 0");
    program.session().store.reset();
    std::filesystem::copy_file(program.session().folder.Store(), f,
                               std::filesystem::copy_options::overwrite_existing);
    return f;
  }();
  return file;
}

void BM_WholeSeason(benchmark::State& state) {
  uint64_t seed = 1;
  int64_t days = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<BenchProgram>("whole-season", StartedSeasonStore(), seed++);
    Session& session = program->session();
    ResumeSeason(session);
    SeasonRun run(session);
    run.cpuSetsUserTeam = true;
    state.ResumeTiming();
    while (session.config.Stage == kStageSeason) {
      SettleWeekFive(session);
      if (SimDay(run) != DayOutcome::kPlayed) {
        state.SkipWithError("the day step stopped");
        break;
      }
      ++days;
    }
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
  state.counters["days"] =
      benchmark::Counter(static_cast<double>(days), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_WholeSeason)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

}  // namespace
}  // namespace courtmere
