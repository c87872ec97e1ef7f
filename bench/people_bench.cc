// Creating a whole league: the staff and 13-man rosters of 120 schools and
// the rosters of 110 background teams, in one transaction; then the pass that
// sets every computer team's roles and depth chart.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "cpu/computer_roster.h"
#include "people/player_creation.h"
#include "people/staff_creation.h"
#include "platform/scripted_ui.h"
#include "store/blank_store.h"
#include "store/session.h"

namespace courtmere {
namespace {

constexpr int kSchools = 120;
constexpr int kBackgroundTeams = 110;
const char* const kRegions[] = {"West", "Midwest", "East", "South"};

// A blank store in a folder of its own with the schools of a league, and the
// name pools and high schools when the seed tables are empty.
class BenchLeague {
 public:
  explicit BenchLeague(const std::string& tag)
      : root_(std::filesystem::temp_directory_path() / ("courtmere-bench-" + tag)) {
    std::filesystem::remove_all(root_);
    std::filesystem::create_directories(root_);
    session_ = std::make_unique<Session>(ProgramFolder(root_), Rng(7), ui_);
    BuildBlankStore(session_->folder.Store());
    session_->store = std::make_unique<Store>(session_->folder.Store());
    Store& s = session_->Db();
    Store::Transaction tx(s);
    FillPools(s);
    s.Exec("DELETE FROM Team");
    s.Exec("DELETE FROM ScrubTeam");
    for (int i = 0; i < kSchools; ++i) {
      s.Append("Team", {{"SchoolName", "School " + std::to_string(i)},
                        {"Region", kRegions[i % 4]},
                        {"InitialPrestige", int64_t{30 + i % 60}},
                        {"Owner", i == 0 ? "Human" : "Computer"}});
    }
    for (int i = 0; i < kBackgroundTeams; ++i) {
      s.Append("ScrubTeam", {{"SchoolName", "Background " + std::to_string(i)},
                             {"InitialPrestige", int64_t{20 + i % 50}}});
    }
    tx.Commit();
  }
  ~BenchLeague() {
    session_.reset();
    std::filesystem::remove_all(root_);
  }
  Session& session() { return *session_; }

 private:
  static void FillPools(Store& s) {
    if (s.RowCount("FName") == 0) {
      for (int i = 1; i <= 500; ++i) {
        s.Append("FName", {{"Id", int64_t{i}}, {"FirstName", "First" + std::to_string(i)}});
        s.Append("LName", {{"Id", int64_t{i}}, {"LastName", "Last" + std::to_string(i)}});
      }
    }
    if (s.RowCount("HighSchool") == 0) {
      for (const char* region : kRegions) {
        for (int i = 1; i <= 200; ++i) {
          s.Append("HighSchool", {{"Region", region},
                                  {"HighSchool", "High " + std::to_string(i)},
                                  {"HomeTown", "Town " + std::to_string(i)},
                                  {"State", "KS"},
                                  {"Area", "KS"}});
        }
      }
    }
  }

  std::filesystem::path root_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

void CreateLeague(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  CreateScouts(session, 0);
  CreateCoaches(session, 0);
  CreateTrainers(session, 0);
  PlayerBatch batch = PlayerBatch::Begin(session);
  std::vector<std::tuple<std::string, std::string, int>> schools;
  for (Rows rows = store.Query("SELECT SchoolName, Region, InitialPrestige FROM Team");
       rows.Next();) {
    schools.emplace_back(rows.Text(0), rows.Text(1), rows.Int(2));
  }
  for (const auto& [school, region, prestige] : schools) {
    CreateTeamRoster(session, batch, school, region, prestige);
  }
  std::vector<std::pair<std::string, int>> background;
  for (Rows rows = store.Query("SELECT SchoolName, InitialPrestige FROM ScrubTeam"); rows.Next();) {
    background.emplace_back(rows.Text(0), rows.Int(1));
  }
  for (const auto& [school, prestige] : background) {
    CreateScrubTeamRoster(session, batch, school, prestige);
  }
  batch.Save(session);
  tx.Commit();
}

void BM_CreateLeague(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto league = std::make_unique<BenchLeague>("create");
    state.ResumeTiming();
    CreateLeague(league->session());
    state.PauseTiming();
    league.reset();
    state.ResumeTiming();
  }
  state.counters["players"] = (kSchools + kBackgroundTeams) * 13;
}
BENCHMARK(BM_CreateLeague)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_SetCPURosterWholeLeague(benchmark::State& state) {
  BenchLeague league("roster");
  CreateLeague(league.session());
  Store& store = league.session().Db();
  for (auto _ : state) {
    state.PauseTiming();
    store.Exec("UPDATE Team SET PG1 = 0");
    store.Exec("UPDATE ScrubTeam SET PG1 = 0");
    state.ResumeTiming();
    SetCPURoster(league.session());
  }
}
BENCHMARK(BM_SetCPURosterWholeLeague)->Unit(benchmark::kMillisecond)->UseRealTime();

// The daily pass when every chart stands: only the cheap test of PG1.
void BM_SetCPURosterChartsStanding(benchmark::State& state) {
  BenchLeague league("standing");
  CreateLeague(league.session());
  SetCPURoster(league.session());
  for (auto _ : state) SetCPURoster(league.session());
}
BENCHMARK(BM_SetCPURosterChartsStanding)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace courtmere
