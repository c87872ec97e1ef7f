// The season's schedules of a whole league: the six fixed conferences, the
// three largest low conferences (Conference USA, the MAC and the Northeast,
// 107 schools) and 110 background teams, built from empty tables in one
// transaction.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

#include "platform/scripted_ui.h"
#include "schedule/league_schedule.h"
#include "store/blank_store.h"
#include "store/session.h"

namespace courtmere {
namespace {

class ScheduleBenchLeague {
 public:
  ScheduleBenchLeague()
      : root_(std::filesystem::temp_directory_path() /
              ("courtmere-bench-schedule-" + std::to_string(getpid()))) {
    std::filesystem::remove_all(root_);
    std::filesystem::create_directories(root_);
    session_ = std::make_unique<Session>(ProgramFolder(root_), Rng(7), ui_);
    BuildBlankStore(session_->folder.Store());
    session_->store = std::make_unique<Store>(session_->folder.Store());
    Setup(session_->Db());
  }
  ~ScheduleBenchLeague() {
    session_.reset();
    std::filesystem::remove_all(root_);
  }
  Session& session() { return *session_; }

  // Back to empty schedule tables, as the offseason leaves them.
  void Clear() {
    Store& s = session_->Db();
    Store::Transaction tx(s);
    for (int id = 1; id <= 9; ++id) s.Exec("DELETE FROM League" + std::to_string(id) + "Schedule");
    s.Exec("DELETE FROM NonConfSchedule");
    s.Exec("DELETE FROM PreSeasonTourney");
    tx.Commit();
  }

 private:
  static void Setup(Store& s) {
    Store::Transaction tx(s);
    s.Exec(
        "INSERT INTO League (Id, Conference, SchedType, Challenge, Week, Day) "
        "SELECT Id, Conference, SchedType, Challenge, Week, Day FROM LeagueSetup WHERE Id < 7");
    int id = 7;
    for (const char* conference : {"Conference USA", "MAC", "Northeast"}) {
      s.Exec(
          "INSERT INTO League (Id, Conference, SchedType) "
          "SELECT ?, Conference, SchedType FROM LeagueSetup WHERE Conference = ?",
          id++, conference);
    }
    const std::string columns =
        "SchoolName, Conference, Region, Division, SchedGroup, InitialPrestige, Prestige, "
        "TeamRating";
    const std::string values =
        "SchoolName, Conference, Region, Division, SchedGroup, Prestige, Prestige, Prestige * 8";
    s.Exec("INSERT INTO Team (" + columns + ") SELECT " + values + " FROM TeamSetup");
    s.Exec("INSERT INTO Team (" + columns + ") SELECT " + values +
           " FROM LowLeagueSetup WHERE Conference IN (SELECT Conference FROM League)");
    s.Exec(
        "INSERT INTO ScrubTeam (SchoolName, Conference, Region, InitialPrestige, Prestige, "
        "TeamRating) SELECT SchoolName, Conference, Region, Prestige, Prestige, Prestige * 8 "
        "FROM LowLeagueSetup WHERE Conference NOT IN (SELECT Conference FROM League) "
        "ORDER BY Prestige DESC LIMIT 110");
    tx.Commit();
  }

  std::filesystem::path root_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

void BM_BuildLeagueSchedules(benchmark::State& state) {
  ScheduleBenchLeague league;
  for (auto _ : state) {
    BuildLeagueSchedules(league.session());
    state.PauseTiming();
    league.Clear();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_BuildLeagueSchedules)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace courtmere
