#include "game_record.h"

#include <fmt/format.h>

#include <fstream>
#include <iostream>

#include "season/schedule_tables.h"

namespace courtmere::cli {

PlayedGame RequirePlayedGame(Session& session, int gameNo) {
  Store& store = session.Db();
  const std::string table = TableOfGame(store, gameNo);
  if (table.empty()) {
    session.ui.Message(fmt::format("There is no game {} in this season.", gameNo));
    throw Refusal{};
  }
  if (store.ScalarInt("SELECT HomeScore FROM " + table + " WHERE GameNo = ?", gameNo).value_or(0) ==
      0) {
    session.ui.Message(fmt::format("Game {} has not been played yet.", gameNo));
    throw Refusal{};
  }
  PlayedGame game{table, ""};
  for (const std::string& conference : LeagueConferences(store)) {
    if (ScheduleTableOf(store, conference) == table) game.conference = conference;
  }
  return game;
}

void PrintGameFile(Session& session, const std::optional<std::filesystem::path>& file,
                   const std::string& missing) {
  std::ifstream in;
  if (file) in.open(*file);
  if (!in.is_open()) {
    session.ui.Message(missing);
    throw Refusal{};
  }
  std::cout << in.rdbuf();
}

}  // namespace courtmere::cli
