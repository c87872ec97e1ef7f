// courtmere-cli save FILE: File > Save without the dialog.
#include <fmt/format.h>

#include "cli_context.h"
#include "save_game_path.h"
#include "store/saved_games.h"
#include "store/season_stats.h"

namespace courtmere::cli {

namespace {

void RunSave(CliContext& context, const std::string& file) {
  Session& session = context.StartSession();
  // The Save entry is open only while a dynasty stands.
  RequireDynasty(session);
  // Each run of the tool starts from the store: the season's figures in
  // memory are the ones the store holds, and a save writes them back.
  LoadSeasonStats(session);
  if (!SaveGameFile(session, WithSaveEnding(SaveGamePath(session, file)))) throw Refusal{};
}

}  // namespace

void AddSaveCommand(CLI::App& app, CliContext& context) {
  auto file = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand(
      "save",
      "Save the dynasty of the program folder's store to FILE, enciphered (\".CMR\" is added "
      "when the name lacks it; a bare name goes to the program folder's SaveGame folder); an "
      "earlier save of that name stays whole if the write fails");
  cmd->add_option("file", *file, "The saved game to write")->required();
  cmd->callback([&context, file] { RunSave(context, *file); });
}

}  // namespace courtmere::cli
