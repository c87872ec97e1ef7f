// courtmere-cli top-coaches: the year's ten best coaches, once the season
// has ended.
#include <fmt/format.h>

#include "cli_context.h"
#include "history/coach_rank.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunTopCoaches(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const std::vector<TopCoachRow> rows = TopCoaches(session.Db());
  if (rows.empty()) {
    session.ui.Message("The top coaches are named when the season ends.");
    throw Refusal{};
  }
  fmt::print("Top 10 Coaches for {}\n", session.config.CurrYear);
  TextTable table;
  table.AddColumn("", "Coach", TextTable::kLeft);
  table.AddColumn("", "Team", TextTable::kLeft);
  table.AddColumn("", "Record", TextTable::kRight);
  table.AddColumn("", "Team Result", TextTable::kLeft);
  for (const TopCoachRow& r : rows) {
    table.AddRow({r.coach, r.team, r.record, r.result});
    if (r.team == school) table.MarkLastRow('*');
  }
  fmt::print("{}", table.Render());
}

}  // namespace

void AddTopCoachesCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("top-coaches", "The year's ten best coaches");
  cmd->callback([&context] { RunTopCoaches(context); });
}

}  // namespace courtmere::cli
