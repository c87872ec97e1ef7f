// A whole new dynasty and the opening of its first season, each as the user
// runs it: File > New from a blank store to "Post Training" (staff, rosters,
// the background field, ratings and schedules, in one transaction), and
// Start Season from there to Thursday of week 1 (recruit pool, walk-ons,
// challenge games, ranks, computer rosters, letter, and the compaction).
// Then a week's end of week 8: the rating index over every scheduled game,
// and the poll that reads it.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "league/cri.h"
#include "league/poll.h"
#include "league/start_season.h"
#include "platform/scripted_ui.h"
#include "screens/new_dynasty_run.h"
#include "store/blank_store.h"
#include "store/session.h"

namespace courtmere {
namespace {

namespace fs = std::filesystem;

NewDynastyRequest Request() {
  NewDynastyRequest request;
  request.conferences = {"MVC", "WAC", "Atlantic 10"};
  request.school = "St. John's";
  request.coach = "D'Angelo O'Neil";
  return request;
}

// A program folder of its own whose store starts as a copy of `store`.
class BenchProgram {
 public:
  BenchProgram(const std::string& tag, const fs::path& store, uint64_t seed)
      : root_(fs::temp_directory_path() / ("courtmere-bench-" + tag)) {
    fs::remove_all(root_);
    fs::create_directories(root_);
    session_ = std::make_unique<Session>(ProgramFolder(root_), Rng(seed), ui_);
    fs::copy_file(store, session_->folder.Store());
    session_->store = std::make_unique<Store>(session_->folder.Store());
    session_->config = LoadConfig(session_->Db());
  }
  ~BenchProgram() {
    session_.reset();
    fs::remove_all(root_);
  }
  Session& session() { return *session_; }

 private:
  fs::path root_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

// The stores the iterations start from, made once.
const fs::path& BlankStore() {
  static const fs::path file = [] {
    const fs::path f = fs::temp_directory_path() / "courtmere-bench-blank.dat";
    BuildBlankStore(f);
    return f;
  }();
  return file;
}

const fs::path& NewDynastyStore() {
  static const fs::path file = [] {
    const fs::path f = fs::temp_directory_path() / "courtmere-bench-dynasty.dat";
    BenchProgram program("dynasty-template", BlankStore(), 1);
    if (!RunNewDynasty(program.session(), Request())) throw std::runtime_error("File > New");
    program.session().store.reset();
    fs::copy_file(program.session().folder.Store(), f, fs::copy_options::overwrite_existing);
    return f;
  }();
  return file;
}

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
