// courtmere-cli poll: the Top 25 as the poll screen shows it.
#include <fmt/format.h>

#include <optional>

#include "cli_context.h"
#include "league/ranking_weeks.h"
#include "screens/top25.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

std::string WeekName(int week) {
  return week == 0 ? "Preseason" : fmt::format("Week {}", week);
}

// Design decision: only the latest poll is kept (Ranking is rewritten by each
// one), so --week names that poll's week or is refused.
void RunPoll(CliContext& context, std::optional<int> week) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const int current = LatestPollWeek(session.config);
  const Top25 poll = ShowTop25(session.Db(), school);
  if (poll.Rows.empty()) {
    session.ui.Message("No poll has been released yet.");
    throw Refusal{};
  }
  if (week && *week != current) {
    session.ui.Message(fmt::format("Only the latest poll is kept: {} ({}).", WeekName(current),
                                   current == 0 ? "--week 0" : fmt::format("--week {}", current)));
    throw Refusal{};
  }
  fmt::print("{}: {}, {}\n\n", poll.Title, WeekName(current), session.config.CurrYear);
  TextTable table;
  table.AddColumn("", "Rank", TextTable::kRight);
  table.AddColumn("", "Team", TextTable::kLeft);
  table.AddColumn("", "Record", TextTable::kRight);
  table.AddColumn("", "Points", TextTable::kRight);
  table.AddColumn("", "Previous", TextTable::kRight);
  bool marked = false;
  for (const Top25Row& r : poll.Rows) {
    table.AddRow({std::to_string(r.Rank), r.Team, r.Record, std::to_string(r.Points),
                  std::to_string(r.Previous)});
    if (r.User) table.MarkLastRow('*');
    marked = marked || r.User;
  }
  fmt::print("{}", table.Render());
  if (!poll.Votes.empty()) fmt::print("\nOthers receiving votes: {}\n", poll.Votes);
  if (marked) fmt::print("\n* your school\n");
}

}  // namespace

void AddPollCommand(CLI::App& app, CliContext& context) {
  auto week = std::make_shared<std::optional<int>>();
  CLI::App* cmd = app.add_subcommand("poll", "Show the Top 25 media poll");
  cmd->add_option("--week", *week,
                  "The poll's week (0 for the season's start); only the latest poll is kept");
  cmd->callback([&context, week] { RunPoll(context, *week); });
}

}  // namespace courtmere::cli
