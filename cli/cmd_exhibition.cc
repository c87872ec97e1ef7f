// courtmere-cli exhibition: plays games between two schools, records them
// and prints each box score.
#include <fmt/format.h>

#include <fstream>
#include <stdexcept>

#include "cli_context.h"
#include "exhibition_setup.h"
#include "season/exhibition_series.h"

namespace courtmere::cli {

namespace {

struct ExhibitionOptions {
  std::string home;
  std::string away;
  int games = 1;
  bool log = false;
};

void PrintFile(const std::string& file) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) fmt::print("{}\n", line);
}

void PrintGame(const SeriesGame& played) {
  PrintFile(played.boxFile);
  if (played.logFile != "none") fmt::print("log {}\n", played.logFile);
}

void RunExhibition(CliContext& context, const ExhibitionOptions& options) {
  if (options.home.empty() != options.away.empty()) {
    throw std::runtime_error("name both schools, home then away, or neither");
  }
  Session& session = context.StartSession();
  const SchoolPair pair = PrepareExhibition(session, options.home, options.away);
  const ExhibitionSeries series{pair.home, pair.away, options.games, options.log};
  const int played = PlayExhibitionSeries(session, series, PrintGame);
  if (played < options.games) {
    // A school could not field a team; the program has said which. The
    // games played stay recorded.
    fmt::print(stderr, "courtmere-cli: the series stopped after {} of {} games\n", played,
               options.games);
    throw CLI::RuntimeError(2);
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
