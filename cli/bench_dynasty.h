// The dynasty the season and year benchmarks play: a new dynasty from a
// blank store in a scratch folder, seeded, with box scores off, and its
// season driver as a headless run has it (recruiting, history, the computer
// setting the user's lineup). The season has not been started.
#pragma once

#include <cstdint>

#include "bench_support.h"
#include "history/dynasty_history.h"
#include "platform/scripted_ui.h"
#include "recruiting/season_recruiting.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere::cli {

struct BenchDynasty {
  explicit BenchDynasty(uint64_t seed);

  ScratchFolder folder;
  ScriptedUi ui;
  Session session;
  SeasonRecruiting recruiting;
  DynastyHistory history;
  SeasonRun run;
};

}  // namespace courtmere::cli
