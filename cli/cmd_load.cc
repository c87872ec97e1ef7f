// courtmere-cli load FILE: File > Load without the dialog.
#include <fmt/format.h>

#include "cli_context.h"
#include "people/grade_all_players.h"
#include "save_game_path.h"
#include "store/menu_gate.h"
#include "store/saved_games.h"

namespace courtmere::cli {

namespace {

void RunLoad(CliContext& context, const std::string& file) {
  Session& session = context.StartSession();
  const std::filesystem::path path = SaveGamePath(session, file);
  switch (LoadGameFile(session, path, GradeAllPlayers)) {
    case LoadOutcome::kIgnored:
      // The desktop program ends here without a word; the tool says why.
      Refuse("A saved game's name ends in .CMR; nothing was loaded.");
    case LoadOutcome::kRefused:
      throw Refusal{};
    case LoadOutcome::kLoaded:
      break;
  }
  const MenuGateState gate = MenuGate(session);
  if (gate.fatal) throw Refusal{};
  fmt::print("loaded {}\n", path.string());
  if (gate.dynasty) {
    fmt::print("{}: {}, {}, week {}, {}\n", gate.title, session.humanSchool, session.config.Stage,
               session.config.CurrWeek, session.config.CurrYear);
  }
}

}  // namespace

void AddLoadCommand(CLI::App& app, CliContext& context) {
  auto file = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand(
      "load",
      "Load the saved game FILE (ending in .CMR; a bare name is looked for in the program "
      "folder's SaveGame folder) into the program folder's store; a file that is not a save "
      "is refused and the dynasty in the store stays as it was");
  cmd->add_option("file", *file, "The saved game to load")->required();
  cmd->callback([&context, file] { RunLoad(context, *file); });
}

}  // namespace courtmere::cli
