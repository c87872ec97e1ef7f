// A whole new dynasty and the opening of its first season, each as the user
// runs it: File > New from a blank store to "Post Training" (staff, rosters,
// the background field, ratings and schedules, in one transaction), and
// Start Season from there to Thursday of week 1 (recruit pool, walk-ons,
// challenge games, ranks, computer rosters, letter, and the compaction).
// Then a week's end of week 8: the rating index over every scheduled game,
// and the poll that reads it.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench_program.h"
#include "league/cri.h"
#include "league/poll.h"
#include "league/start_season.h"
#include "screens/new_dynasty_run.h"

namespace courtmere {
namespace {

void BM_NewDynasty(benchmark::State& state) {
  uint64_t seed = 1;
  for (auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<BenchProgram>("new", BlankStore(), seed++);
    state.ResumeTiming();
    if (!RunNewDynasty(program->session(), Request())) state.SkipWithError("File > New refused");
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_NewDynasty)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_StartSeason(benchmark::State& state) {
  uint64_t seed = 1;
  for (auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<BenchProgram>("season", NewDynastyStore(), seed++);
    state.ResumeTiming();
    if (StartSeason(program->session()) != SeasonStart::kStarted) {
      state.SkipWithError("Start Season refused");
    }
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_StartSeason)->Unit(benchmark::kMillisecond)->UseRealTime();

// The rating index of week 8 over the new dynasty's whole schedule.
void BM_UpdateCRI(benchmark::State& state) {
  BenchProgram program("cri", NewDynastyStore(), 1);
  program.session().config.CurrWeek = 8;
  for (auto _ : state) UpdateCRI(program.session());
}
BENCHMARK(BM_UpdateCRI)->Unit(benchmark::kMillisecond)->UseRealTime();

// The poll of week 8, after that week's index: every school scored, the
// background records moved, Ranking rewritten.
void BM_UpdatePoll(benchmark::State& state) {
  BenchProgram program("poll", NewDynastyStore(), 1);
  program.session().config.CurrWeek = 8;
  UpdateCRI(program.session());
  for (auto _ : state) UpdatePoll(program.session());
}
BENCHMARK(BM_UpdatePoll)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace courtmere
