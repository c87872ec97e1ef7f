#include "bench_dynasty.h"

#include <memory>
#include <stdexcept>

#include "screens/new_dynasty_run.h"
#include "store/blank_store.h"
#include "store/menu_gate.h"

namespace courtmere::cli {

namespace {

Session& OpenDynasty(Session& session) {
  BuildBlankStore(session.folder.Store());
  session.store = std::make_unique<Store>(session.folder.Store());
  NewDynastyRequest request;
  request.conferences = {"MVC", "WAC", "Atlantic 10"};
  request.school = "St. John's";
  request.coach = "D'Angelo O'Neil";
  if (!RunNewDynasty(session, request)) throw std::runtime_error("File > New was refused");
  MenuGate(session);
  // Box scores off: the games write no files.
  session.Db().Exec("UPDATE Config SET NumPlayers = 0 WHERE IdConfig = 0");
  session.config.NumPlayers = 0;
  return session;
}

}  // namespace

BenchDynasty::BenchDynasty(uint64_t seed)
    : session(ProgramFolder(folder.Path()), Rng(seed), ui), run(OpenDynasty(session)) {
  run.recruiting = &recruiting;
  run.history = &history;
  run.cpuSetsUserTeam = true;
}

}  // namespace courtmere::cli
