// courtmere-cli log GAMENO: the play-by-play log of a played game, as the
// game-log screen opens it.
#include <fmt/format.h>

#include "game_record.h"
#include "screens/game_log.h"

namespace courtmere::cli {

namespace {

void RunLog(CliContext& context, int gameNo) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const PlayedGame game = RequirePlayedGame(session, gameNo);
  PrintGameFile(session, GameLogFile(session.Db(), gameNo, game.conference),
                fmt::format("No play-by-play log was kept for game {}: only the user's games "
                            "played with View Play-By-Play on have one. Turn it on with "
                            "\"courtmere-cli options --play-by-play on\" before the games are "
                            "played.",
                            gameNo));
}

}  // namespace

void AddLogCommand(CLI::App& app, CliContext& context) {
  auto gameNo = std::make_shared<int>(0);
  CLI::App* cmd = app.add_subcommand("log", "The play-by-play log of a played game");
  cmd->add_option("gameno", *gameNo, "The game's number")->required();
  cmd->callback([&context, gameNo] { RunLog(context, *gameNo); });
}

}  // namespace courtmere::cli
