// courtmere-cli training: the user's training screen. Without options it
// lists his players with their 13 lists and the points remaining; --player
// shows one; --set ID SKILL=N ... changes lists of one player and submits
// them as the screen's Submit does (65 points exactly, 0 to 10 a list).
// SKILL is a list's column or label, in any case ("Threes", "per. defense").
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <optional>

#include "cli_context.h"
#include "offseason_command.h"
#include "people/player.h"
#include "screens/training.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct TrainingOptions {
  std::optional<int> player;
  std::vector<std::string> set;
};

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

int SkillIndex(const std::string& name) {
  const std::string wanted = Lower(name);
  for (int i = 0; i < kTrainingSkills; ++i) {
    if (Lower(kTrainingSkillNames[i].column) == wanted ||
        Lower(kTrainingSkillNames[i].label) == wanted) {
      return i;
    }
  }
  Refuse("No training list is called " + name + ".");
}

int Points(const std::string& text) {
  try {
    size_t used = 0;
    const int value = std::stoi(text, &used);
    if (used == text.size()) return value;
  } catch (const std::exception&) {
  }
  Refuse("Training points must be a whole number: " + text);
}

void PrintRoster(const std::vector<TrainingPlayer>& roster) {
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  table.AddColumn("Name", "", TextTable::kLeft);
  table.AddColumn("Pos", "", TextTable::kLeft);
  table.AddColumn("Year", "", TextTable::kLeft);
  for (const auto& skill : kTrainingSkillNames)
    table.AddColumn(skill.column, "", TextTable::kRight);
  table.AddColumn("Left", "", TextTable::kRight);
  for (const TrainingPlayer& p : roster) {
    std::vector<std::string> cells = {std::to_string(p.Id), p.Name, PositionName(p.PlayerPosition),
                                      p.PlayerYear};
    for (int points : p.points) cells.push_back(std::to_string(points));
    cells.push_back(std::to_string(TrainingPointsRemaining(p.points)));
    table.AddRow(std::move(cells));
  }
  fmt::print("{}", table.Render());
}

void PrintPlayer(const TrainingPlayer& p) {
  fmt::print("{} ({}, {}), GPA {:.2f}\n", p.Name, PositionName(p.PlayerPosition), p.PlayerYear,
             p.GPA);
  TextTable table;
  table.AddColumn("List", "", TextTable::kLeft);
  table.AddColumn("Points", "", TextTable::kRight);
  for (int i = 0; i < kTrainingSkills; ++i) {
    table.AddRow({kTrainingSkillNames[i].label, std::to_string(p.points[i])});
  }
  fmt::print("{}TRAINING POINTS REMAINING: {}\n", table.Render(),
             TrainingPointsRemaining(p.points));
}

const TrainingPlayer& Find(const std::vector<TrainingPlayer>& roster, int id) {
  for (const TrainingPlayer& p : roster) {
    if (p.Id == id) return p;
  }
  Refuse("Player " + std::to_string(id) + " is not on your team.");
}

void RunTraining(CliContext& context, const TrainingOptions& options) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  // The training schedule is open from Begin Offseason until Train Players.
  RequireOffseasonStage(session, kStageBeginOffSeason, "The training schedule");
  Store& store = session.Db();
  const std::vector<TrainingPlayer> roster = TrainingRoster(store, school);
  if (!options.set.empty()) {
    const TrainingPlayer& p = Find(roster, Points(options.set.front()));
    TrainingRow row = p.points;
    for (size_t i = 1; i < options.set.size(); ++i) {
      const std::string& item = options.set[i];
      const size_t eq = item.find('=');
      if (eq == std::string::npos) Refuse("Write each change as SKILL=N: " + item);
      row[SkillIndex(item.substr(0, eq))] = Points(item.substr(eq + 1));
    }
    Store::Transaction tx(store);
    const TrainingSubmit result = SubmitTraining(store, school, p.Id, row);
    if (!result.saved) Refuse(result.message);
    tx.Commit();
    fmt::print("{}\n", result.message);
    PrintPlayer(Find(TrainingRoster(store, school), p.Id));
    return;
  }
  if (options.player) {
    PrintPlayer(Find(roster, *options.player));
    return;
  }
  PrintRoster(roster);
}

}  // namespace

void AddTrainingCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "training", "The user's training schedule (Off Season > Setup Training Schedule)");
  auto options = std::make_shared<TrainingOptions>();
  cmd->add_option("--player", options->player, "Show one player's lists");
  cmd->add_option("--set", options->set, "ID SKILL=N ...: change a player's lists and submit them")
      ->expected(2, 14);
  cmd->callback([&context, options] { RunTraining(context, *options); });
}

}  // namespace courtmere::cli
