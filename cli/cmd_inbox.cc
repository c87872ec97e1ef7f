// courtmere-cli inbox: the inbox of the current week, or of any week of the
// season: a numbered list of senders and subjects, then each letter.
#include <fmt/format.h>

#include <optional>

#include "season/calendar.h"
#include "season_command.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunInbox(CliContext& context, std::optional<int> asked) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const Config& c = session.config;
  const int week = asked.value_or(WeekOfLastStep(c.CurrWeek, c.CurrDay));
  if (week < 1 || week > kSeasonOverWeek) {
    session.ui.Message(fmt::format("There is no week {} in a season.", week));
    throw Refusal{};
  }
  const std::vector<InboxMessage> letters = InboxOfWeek(session.Db(), week);
  fmt::print("Inbox, week {}\n", week);
  if (letters.empty()) {
    fmt::print("No messages.\n");
    return;
  }
  TextTable list;
  list.AddColumn("", "", TextTable::kRight);
  list.AddColumn("From", "", TextTable::kLeft);
  list.AddColumn("Subject", "", TextTable::kLeft);
  for (size_t i = 0; i < letters.size(); ++i) {
    list.AddRow({std::to_string(i + 1), letters[i].Sender, letters[i].Subject});
  }
  fmt::print("{}", list.Render());
  for (size_t i = 0; i < letters.size(); ++i) {
    fmt::print("\n{}. {}: {}\n{}\n", i + 1, letters[i].Sender, letters[i].Subject, letters[i].Text);
  }
}

}  // namespace

void AddInboxCommand(CLI::App& app, CliContext& context) {
  auto week = std::make_shared<std::optional<int>>();
  CLI::App* cmd = app.add_subcommand("inbox", "The inbox: the letters of the week");
  cmd->add_option("--week", *week, "The week to list (default: the week last played)");
  cmd->callback([&context, week] { RunInbox(context, *week); });
}

}  // namespace courtmere::cli
