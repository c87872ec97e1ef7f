// courtmere-cli development: the Player Development Report of the user's
// school, each grade before and after training, and the study rating.
#include <fmt/format.h>

#include "cli_context.h"
#include "people/player.h"
#include "screens/development_report.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunDevelopment(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const std::vector<DevelopmentLine> lines = DevelopmentReport(session.Db(), school);
  TextTable table;
  table.AddColumn("Name", "", TextTable::kLeft);
  table.AddColumn("Pos", "", TextTable::kLeft);
  table.AddColumn("Year", "", TextTable::kLeft);
  if (!lines.empty()) {
    for (const GradeChange& g : lines.front().grades)
      table.AddColumn(g.label, "", TextTable::kLeft);
  }
  table.AddColumn("Study", "", TextTable::kLeft);
  for (const DevelopmentLine& line : lines) {
    std::vector<std::string> cells = {line.Name, PositionName(line.PlayerPosition),
                                      line.PlayerYear};
    for (const GradeChange& g : line.grades) cells.push_back(g.before + " > " + g.after);
    cells.push_back(line.study);
    table.AddRow(std::move(cells));
  }
  fmt::print("Player Development Report: {}\n{}", school, table.Render());
}

}  // namespace

void AddDevelopmentCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("development", "The Player Development Report");
  cmd->callback([&context] { RunDevelopment(context); });
}

}  // namespace courtmere::cli
