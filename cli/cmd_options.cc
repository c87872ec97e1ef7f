// courtmere-cli options: the options screen's four settings. Without an
// option it shows them; with any, it changes those given, keeps the others,
// and submits them as the screen's Submit button does (the same Config
// row, the same "Your Settings have been updated!").
#include <fmt/format.h>

#include <optional>

#include "cli_context.h"
#include "screens/options.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

// Each switch as the user types it, "on" or "off"; unset when not given.
struct OptionsChange {
  std::optional<std::string> playByPlay;
  std::optional<std::string> autosave;
  std::optional<std::string> boxScores;
  std::optional<int> simSpeed;

  bool Any() const { return playByPlay || autosave || boxScores || simSpeed; }
};

void Apply(const std::optional<std::string>& word, int& value) {
  if (word) value = *word == "on" ? 1 : 0;
}

std::string OnOff(int value) {
  return value != 0 ? "on" : "off";
}

void PrintOptions(const Options& o) {
  TextTable table;
  table.AddColumn("", "", TextTable::kLeft);
  table.AddColumn("", "", TextTable::kLeft);
  table.AddRow({"View Play-By-Play", OnOff(o.PlayByPlay)});
  table.AddRow({"Autosave At Season's End", OnOff(o.Autosave)});
  table.AddRow({"Save Box Scores to Disk:", OnOff(o.NumPlayers)});
  table.AddRow({"Set Score Ticker Speed (5=Normal)", std::to_string(o.SimSpeed)});
  fmt::print("{}", table.Render());
}

void RunOptions(CliContext& context, const OptionsChange& change) {
  Session& session = context.StartSession();
  Options options = CurrentOptions(session);
  if (change.Any()) {
    Apply(change.playByPlay, options.PlayByPlay);
    Apply(change.autosave, options.Autosave);
    Apply(change.boxScores, options.NumPlayers);
    if (change.simSpeed) options.SimSpeed = *change.simSpeed;
    SubmitOptions(session, options);
  }
  PrintOptions(CurrentOptions(session));
}

}  // namespace

void AddOptionsCommand(CLI::App& app, CliContext& context) {
  auto change = std::make_shared<OptionsChange>();
  CLI::App* cmd = app.add_subcommand(
      "options", "Show the options, or set those given (the desktop's Setup > Options)");
  const auto onOff = CLI::IsMember({"on", "off"});
  cmd->add_option("--play-by-play", change->playByPlay,
                  "View Play-By-Play: the user's games keep a play-by-play log (on|off)")
      ->check(onOff);
  cmd->add_option("--autosave", change->autosave, "Autosave at the season's end (on|off)")
      ->check(onOff);
  cmd->add_option("--box-scores", change->boxScores,
                  "Save every game's box score to disk, not only the user's list's (on|off)")
      ->check(onOff);
  cmd->add_option("--sim-speed", change->simSpeed,
                  "The score ticker's pause, 0 to 10 (0 is no pause, 5 is normal; the "
                  "desktop's ticker waits this many tenths of a second between games)")
      ->check(CLI::Range(kNoTickerPause, kLongestTickerPause));
  cmd->callback([&context, change] { RunOptions(context, *change); });
}

}  // namespace courtmere::cli
