// courtmere-cli lineup: the user's depth chart and inactive man as the Team
// Roster screen shows them, and `--auto`, its Computer Set Lineup button:
// the computer builds the chart anew.
#include <fmt/format.h>

#include "cli_context.h"
#include "people/player.h"
#include "screens/roster_rules.h"
#include "screens/roster_view.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

std::string PlayerName(Store& store, int id) {
  return id == 0 ? "(empty)"
                 : store.ScalarText("SELECT Name FROM Player WHERE Id = ?", id).value_or("?");
}

void RunLineup(CliContext& context, bool automatic) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  if (automatic && !AutoSetLineup(session, school)) throw Refusal{};
  Store& store = session.Db();
  const DepthChart chart = LoadDepthChart(store, school);
  fmt::print("{} depth chart\n", school);
  TextTable table;
  table.AddColumn("", "", TextTable::kLeft);
  for (const char* string : {"Starter", "Second", "Third"}) {
    table.AddColumn(string, "", TextTable::kLeft);
  }
  for (int position = 1; position <= 5; ++position) {
    std::vector<std::string> cells = {PositionName(position)};
    for (int string = 0; string < 3; ++string) {
      cells.push_back(PlayerName(store, chart.ids[static_cast<size_t>(string * 5 + position - 1)]));
    }
    table.AddRow(std::move(cells));
  }
  fmt::print("{}Inactive: {}\n", table.Render(), PlayerName(store, chart.inactive));
}

}  // namespace

void AddLineupCommand(CLI::App& app, CliContext& context) {
  auto automatic = std::make_shared<bool>(false);
  CLI::App* cmd = app.add_subcommand("lineup", "The user's depth chart");
  cmd->add_flag("--auto", *automatic, "Let the computer set the lineup (Computer Set Lineup)");
  cmd->callback([&context, automatic] { RunLineup(context, *automatic); });
}

}  // namespace courtmere::cli
