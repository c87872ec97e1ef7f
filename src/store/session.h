// The running program's session: the program folder, the open store, the
// random generator and the user interface, plus the in-memory copy of Config.
//
// Flows take a Session& rather than reaching for globals, so a test can run
// two at once on two program folders.
#pragma once

#include <memory>

#include "platform/program_folder.h"
#include "platform/rng.h"
#include "platform/ui.h"
#include "store/config.h"
#include "store/inbox.h"
#include "store/store.h"

namespace courtmere {

struct Session {
  Session(ProgramFolder folder, Rng rng, Ui& ui) : folder(std::move(folder)), rng(rng), ui(ui) {}

  ProgramFolder folder;
  Rng rng;
  Ui& ui;
  std::unique_ptr<Store> store;  // null while the store is closed
  Config config;
  Inbox inbox;  // the current week's messages to the user

  Store& Db() { return *store; }
  bool StoreOpen() const { return store != nullptr; }
};

}  // namespace courtmere
