// What a user waits for around saved games: writing a save, checking and
// loading one, and the menu gate that runs after every flow.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

#include "platform/scripted_ui.h"
#include "store/menu_gate.h"
#include "store/saved_games.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere {
namespace {

// A blank store in a program folder of its own, with a user's school.
struct BenchDynasty {
  BenchDynasty() {
    dir = std::filesystem::temp_directory_path() /
          ("courtmere-save-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    session = std::make_unique<Session>(ProgramFolder(dir), Rng(1), ui);
    StartUp(*session);
    Store& store = session->Db();
    store.Append("League", {{"Id", int64_t{1}}, {"Conference", "Big East"}});
    store.Append("Team", {{"SchoolName", "St. John's"}, {"Conference", "Big East"}});
    store.Append("HeadCoach", {{"Name", "Pat O'Neil"}, {"Team", "St. John's"}});
    save = dir / "bench.CMR";
    SaveGameFile(*session, save);
  }
  ~BenchDynasty() {
    session.reset();
    std::filesystem::remove_all(dir);
  }
  std::filesystem::path dir;
  std::filesystem::path save;
  ScriptedUi ui;
  std::unique_ptr<Session> session;
};

void BM_SaveGame(benchmark::State& state) {
  BenchDynasty b;
  for (auto _ : state) benchmark::DoNotOptimize(SaveGameFile(*b.session, b.save));
}
BENCHMARK(BM_SaveGame)->Unit(benchmark::kMillisecond);

void BM_LoadGame(benchmark::State& state) {
  BenchDynasty b;
  for (auto _ : state) {
    benchmark::DoNotOptimize(LoadGameFile(*b.session, b.save, nullptr));
  }
}
BENCHMARK(BM_LoadGame)->Unit(benchmark::kMillisecond);

void BM_MenuGate(benchmark::State& state) {
  BenchDynasty b;
  for (auto _ : state) benchmark::DoNotOptimize(ComputeMenuGate(b.session->Db()).title);
}
BENCHMARK(BM_MenuGate)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace courtmere
