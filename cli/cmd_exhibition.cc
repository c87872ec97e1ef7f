// courtmere-cli exhibition: plays games between two schools, records them
// and prints each box score.
#include <fmt/format.h>

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "cli_context.h"
#include "engine/post_game.h"
#include "engine/run_engine.h"
#include "exhibition_setup.h"
#include "store/config.h"

namespace courtmere::cli {

namespace {

struct ExhibitionOptions {
  std::string home;
  std::string away;
  int games = 1;
  bool log = false;
};

// The season figures of the two schools' players, for the recording.
PlayerStatsStore SeasonStore(Store& store, const SchoolPair& pair) {
  PlayerStatsStore stats;
  int index = 1;
  for (const std::string& school : {pair.home, pair.away}) {
    TeamSeasonLines& team = stats.Team(index++);
    team.SchoolName = school;
    int slot = 1;
    for (const char* table : {"Player", "ScrubPlayer"}) {
      const std::string sql =
          std::string("SELECT Id, PlayerPosition FROM ") + table + " WHERE Team = ? ORDER BY Id";
      for (Rows rows = store.Query(sql, school); rows.Next() && slot <= TeamSeasonLines::kSlots;) {
        team.Players[slot].Id = rows.Int(0);
        team.Players[slot].PlayerPosition = rows.Int(1);
        ++slot;
      }
    }
  }
  return stats;
}

void PrintFile(const std::string& file) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) fmt::print("{}\n", line);
}

void RunExhibition(CliContext& context, const ExhibitionOptions& options) {
  if (options.home.empty() != options.away.empty()) {
    throw std::runtime_error("name both schools, home then away, or neither");
  }
  Session& session = context.StartSession();
  const SchoolPair pair = PrepareExhibition(session, options.home, options.away);
  Store& store = session.Db();
  session.config = LoadConfig(store);
  PlayerStatsStore stats = SeasonStore(store, pair);
  DayResults day;
  Game game(session);
  for (int g = 0; g < options.games; ++g) {
    GameRequest request;
    request.HomeTeam = pair.home;
    request.AwayTeam = pair.away;
    request.GameType = "Exhibition";
    request.BatchIndex = g % 150 + 1;
    request.GameNo = ++session.config.MaxGameNo;
    std::string box;
    std::string log = options.log ? "log" : "none";
    if (RunEngine(game, day, request, box, log) != 1) {
      throw std::runtime_error("the game could not be played");
    }
    RecordPlayerStats(day, stats, session.config, request.BatchIndex);
    RecordTeamStats(store, day, request.BatchIndex);
    SaveConfig(store, session.config);
    PrintFile(box);
    if (log != "none") fmt::print("log {}\n", log);
  }
}

}  // namespace

void AddExhibitionCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<ExhibitionOptions>();
  CLI::App* cmd = app.add_subcommand(
      "exhibition",
      "Play games between two schools (set up from the seed tables when there is no dynasty), "
      "record them and print each box score");
  cmd->add_option("home", options->home, "The home school");
  cmd->add_option("away", options->away, "The away school");
  cmd->add_option("--games", options->games, "Games to play (default 1)")
      ->check(CLI::PositiveNumber);
  cmd->add_flag("--log", options->log, "Also write each game's play-by-play log");
  cmd->callback([&context, options] { RunExhibition(context, *options); });
}

}  // namespace courtmere::cli
