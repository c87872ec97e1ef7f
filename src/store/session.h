// The running program's session: the program folder, the open store, the
// random generator and the user interface, plus the in-memory copy of Config,
// the user's school as the menu gate found it, and the season's individual
// statistics, which live in memory between saves.
//
// Flows take a Session& rather than reaching for globals, so a test can run
// two at once on two program folders.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/folder_lock.h"
#include "platform/program_folder.h"
#include "platform/rng.h"
#include "platform/ui.h"
#include "store/config.h"
#include "store/inbox.h"
#include "store/player_stats_store.h"
#include "store/store.h"

namespace courtmere {

struct Session {
  Session(ProgramFolder folder, Rng rng, Ui& ui)
      : folder(std::move(folder)), rng(rng), givenSeed(rng.FixedSeed()), ui(ui) {}

  ProgramFolder folder;
  Rng rng;
  // The fixed seed the run was started with (--seed, a test's); none in clock
  // mode. A new dynasty keeps it as its own (store/dynasty_seed.h).
  std::optional<uint64_t> givenSeed;
  Ui& ui;
  // Held from start-up to the end of the run (declared before the store, so
  // that it is let go after the store is closed).
  std::unique_ptr<FolderLock> folderLock;
  std::unique_ptr<Store> store;  // null while the store is closed
  Config config;
  Inbox inbox;  // the current week's messages to the user

  // Set by MenuGate: the user's school (without a fired coach's prefix), its
  // conference and that conference's schedule table ("League<Id>Schedule").
  // Empty while the store holds no dynasty.
  std::string humanSchool;
  std::string humanConference;
  std::string humanScheduleTable;

  // The season's individual statistics. Games add to them; they reach the
  // PlayerStats table only when the dynasty is saved or the season ends.
  PlayerStatsStore seasonStats;

  // The store's count of changed rows when the dynasty was last loaded or
  // saved; -1 when it never was. See saved_games.h.
  int64_t changesAtSave = -1;
  // Set while the program ends.
  bool quitting = false;

  Store& Db() { return *store; }
  bool StoreOpen() const { return store != nullptr; }
};

}  // namespace courtmere
