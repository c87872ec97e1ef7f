// What every courtmere-cli command shares: the global options and the session
// built from them.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "platform/scripted_ui.h"
#include "store/session.h"

namespace courtmere::cli {

struct CliContext {
  std::string home;              // --home; empty means the desktop program's folder
  std::optional<uint64_t> seed;  // --seed; fixed-seed mode when given
  ScriptedUi ui{nullptr};
  std::unique_ptr<Session> session;

  // Builds the session and runs the program's start-up (the store is open
  // afterwards).
  Session& StartSession();
};

// A command's refusal: the program's own message has been shown through the
// Ui; `what()` may add the tool's own explanation for stderr. Nothing was
// changed, and the tool exits with status 2.
class CliRefusal : public std::runtime_error {
 public:
  explicit CliRefusal(const std::string& why = "") : std::runtime_error(why) {}
};

// Each command adds itself to the app; its callback runs the command.
void AddInitCommand(CLI::App& app, CliContext& context);
void AddExhibitionCommand(CLI::App& app, CliContext& context);
void AddBenchCommand(CLI::App& app, CliContext& context);
void AddSaveCommand(CLI::App& app, CliContext& context);
void AddLoadCommand(CLI::App& app, CliContext& context);

}  // namespace courtmere::cli
