// courtmere-cli init: the program's start-up, then the seed tables' sizes.
#include <fmt/format.h>

#include "cli_context.h"
#include "store/blank_store.h"

namespace courtmere::cli {

void AddInitCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "init",
      "Start the program: make the store and its backup when missing, open it, and "
      "print each seed table with its row count");
  cmd->callback([&context] {
    Session& session = context.StartSession();
    fmt::print("store {}\n", session.folder.Store().string());
    for (const std::string& table : SeedTables()) {
      fmt::print("{:<16} {:>6}\n", table, session.Db().RowCount(table));
    }
  });
}

}  // namespace courtmere::cli
