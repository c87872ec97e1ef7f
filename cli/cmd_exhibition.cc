// courtmere-cli exhibition: plays games between two schools, records them in
// a scratch copy of the store and prints each box score.
#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <memory>

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

// The exhibition's own program folder, "Exhibition" in the program folder,
// made anew for each exhibition: a copy of the folder's store (the dynasty's
// schools, or the blank store's seed tables) and the games' box scores and
// logs. Design decision: exhibitions play in this copy, so that they never
// touch the dynasty (its records, game numbers, injuries), and the files of
// the last exhibition stay there for the user to read.
std::unique_ptr<Session> OpenScratch(CliContext& context, Session& home) {
  const std::filesystem::path root = home.folder.Root() / "Exhibition";
  std::filesystem::remove_all(root);
  ProgramFolder folder(root);
  home.Db().Exec("VACUUM INTO ?", folder.Store().string());
  auto scratch =
      std::make_unique<Session>(std::move(folder), Rng::FromOption(context.seed), context.ui);
  scratch->store = std::make_unique<Store>(scratch->folder.Store());
  scratch->config = LoadConfig(*scratch->store);
  return scratch;
}

void RunExhibition(CliContext& context, const ExhibitionOptions& options) {
  if (options.home.empty() != options.away.empty()) {
    Refuse("Name both schools, home then away, or neither.");
  }
  if (options.games < 1) Refuse("The number of games must be at least 1.");
  Session& home = context.StartSession(CliContext::SeedFrom::kOption);
  std::unique_ptr<Session> scratch = OpenScratch(context, home);
  Session& session = *scratch;
  const SchoolPair pair = PrepareExhibition(session, options.home, options.away);
  const ExhibitionSeries series{pair.home, pair.away, options.games, options.log};
  const int played = PlayExhibitionSeries(session, series, PrintGame);
  if (played < options.games) {
    // A school could not field a team; the program has said which.
    Refuse(fmt::format("The series stopped after {} of {} games.", played, options.games));
  }
}

}  // namespace

void AddExhibitionCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<ExhibitionOptions>();
  CLI::App* cmd = app.add_subcommand(
      "exhibition",
      "Play games between two schools (set up from the seed tables when there is no dynasty) "
      "and print each box score; they are played in a copy of the store in the program folder's "
      "Exhibition folder, never in the dynasty");
  cmd->add_option("home", options->home, "The home school");
  cmd->add_option("away", options->away, "The away school");
  cmd->add_option("--games", options->games, "Games to play (default 1)");
  cmd->add_flag("--log", options->log, "Also write each game's play-by-play log");
  cmd->callback([&context, options] { RunExhibition(context, *options); });
}

}  // namespace courtmere::cli
