// The store's hot paths: a cached, parameter-bound query and a batch of rows
// appended in one transaction.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "store/blank_store.h"
#include "store/store.h"

namespace courtmere {
namespace {

struct BenchStore {
  BenchStore() {
    dir = std::filesystem::temp_directory_path() / ("courtmere-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    BuildBlankStore(dir / "mereball.dat");
    store = std::make_unique<Store>(dir / "mereball.dat");
    Store::Transaction tx(*store);
    for (int i = 1; i <= 3000; ++i) {
      store->Append("Player", {{"Id", i},
                               {"Name", "Player " + std::to_string(i)},
                               {"Team", "School " + std::to_string(i % 230)},
                               {"Jumpshot", i % 100}});
    }
    tx.Commit();
  }
  ~BenchStore() {
    store.reset();
    std::filesystem::remove_all(dir);
  }
  std::filesystem::path dir;
  std::unique_ptr<Store> store;
};

void BM_CachedQueryByKey(benchmark::State& state) {
  BenchStore b;
  int id = 1;
  for (auto _ : state) {
    Rows rows = b.store->Query("SELECT Name, Jumpshot FROM Player WHERE Id = ?", id);
    rows.Next();
    benchmark::DoNotOptimize(rows.Int(1));
    id = id % 3000 + 1;
  }
}
BENCHMARK(BM_CachedQueryByKey);

void BM_TeamRosterQuery(benchmark::State& state) {
  BenchStore b;
  int team = 0;
  for (auto _ : state) {
    int sum = 0;
    for (Rows rows = b.store->Query("SELECT Jumpshot FROM Player WHERE Team = ?",
                                    "School " + std::to_string(team));
         rows.Next();) {
      sum += rows.Int(0);
    }
    benchmark::DoNotOptimize(sum);
    team = (team + 1) % 230;
  }
}
BENCHMARK(BM_TeamRosterQuery);

void BM_AppendThousandRowsInOneTransaction(benchmark::State& state) {
  BenchStore b;
  for (auto _ : state) {
    Store::Transaction tx(*b.store);
    for (int i = 0; i < 1000; ++i) {
      b.store->Append("Trainer",
                      {{"Name", "Trainer"}, {"Team", "St. John's"}, {"Ability", i % 100}});
    }
    tx.Commit();
    state.PauseTiming();
    b.store->Exec("DELETE FROM Trainer");
    state.ResumeTiming();
  }
}
BENCHMARK(BM_AppendThousandRowsInOneTransaction)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace courtmere
