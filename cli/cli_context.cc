#include "cli_context.h"

#include <iostream>

#include "store/store_files.h"

namespace courtmere::cli {

Session& CliContext::StartSession() {
  ui = ScriptedUi(&std::cout);
  ProgramFolder folder(home.empty() ? ProgramFolder::DefaultRoot() : std::filesystem::path(home));
  session = std::make_unique<Session>(std::move(folder), Rng::FromOption(seed), ui);
  StartUp(*session);
  return *session;
}

}  // namespace courtmere::cli
