// courtmere-cli cri: the College Rating Index as its screen shows it.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/ranking_weeks.h"
#include "screens/cri_list.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunCri(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const Config& c = session.config;
  const CriList list = ShowCRI(session.Db(), school);
  // Before this season's first index the rows, if any, are last season's.
  const int week = LatestCriWeek(c);
  if (list.Rows.empty() || week == 0) {
    session.ui.Message("The College Rating Index is released at the end of week 5.");
    throw Refusal{};
  }
  fmt::print("{}: week {}, {}\n\n", list.Title, week, c.CurrYear);
  TextTable table;
  table.AddColumn("", "Rank", TextTable::kRight);
  table.AddColumn("", "Team", TextTable::kLeft);
  table.AddColumn("", "Record", TextTable::kRight);
  table.AddColumn("", "CRI", TextTable::kRight);
  table.AddColumn("Win", "Pct.", TextTable::kRight);
  table.AddColumn("Schedule", "Strength", TextTable::kRight);
  table.AddColumn("Schedule", "Rank", TextTable::kRight);
  for (const CriListRow& r : list.Rows) {
    table.AddRow({std::to_string(r.Rank), r.Team, r.Record, FormatIndex(r.CRIValue),
                  fmt::format("{:.3f}", r.WinPer), FormatIndex(r.SchedStrength),
                  std::to_string(r.SchedRank)});
    if (r.User) table.MarkLastRow('*');
  }
  fmt::print("{}\n* your school\n", table.Render());
}

}  // namespace

void AddCriCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("cri", "Show the College Rating Index");
  cmd->callback([&context] { RunCri(context); });
}

}  // namespace courtmere::cli
