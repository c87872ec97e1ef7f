// courtmere-cli box GAMENO: the box score of a played game, as the box-score
// screen opens it from the day's list.
#include <fmt/format.h>

#include "game_record.h"
#include "screens/box_score_view.h"

namespace courtmere::cli {

namespace {

void RunBox(CliContext& context, int gameNo) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const PlayedGame game = RequirePlayedGame(session, gameNo);
  PrintGameFile(session, BoxScoreFile(session.Db(), gameNo, game.table),
                fmt::format("No box score was kept for game {} (the option Save Box Scores to "
                            "Disk was off).",
                            gameNo));
}

}  // namespace

void AddBoxCommand(CLI::App& app, CliContext& context) {
  auto gameNo = std::make_shared<int>(0);
  CLI::App* cmd = app.add_subcommand("box", "The box score of a played game");
  cmd->add_option("gameno", *gameNo, "The game's number")->required();
  cmd->callback([&context, gameNo] { RunBox(context, *gameNo); });
}

}  // namespace courtmere::cli
