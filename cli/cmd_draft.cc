// courtmere-cli draft: Progress > Run NBA Draft, answering Yes; prints the
// picks. `draft --show` prints the last draft's picks and the players
// leaving early without running anything.
#include <fmt/format.h>

#include <memory>

#include "cli_context.h"
#include "offseason/career_steps.h"
#include "offseason/nba_draft.h"
#include "offseason_command.h"
#include "screens/draft_list.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void PrintLeavers(Store& store) {
  TextTable table;
  for (const char* heading : {"Name", "Year", "Team", "Reason"}) {
    table.AddColumn(heading, "", TextTable::kLeft);
  }
  for (const EarlyLeaver& l : PlayersLeavingEarly(store)) {
    table.AddRow({l.Name, l.PlayerYear, l.Team, l.Reason});
  }
  fmt::print("Players Leaving Early\n{}", table.Render());
}

void RunDraftCommand(CliContext& context, bool show) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  Store& store = session.Db();
  if (show) {
    PrintLeavers(store);
    fmt::print("\n{}\n{}", DraftTitle(session.config.CurrYear), DraftTable(store));
    return;
  }
  RequireOffseasonStage(session, kStageEndSeason, "The draft");
  if (!ProceedWithDraft(session, CoachCareer())) throw Refusal{};
  fmt::print("{}\n{}", DraftTitle(session.config.CurrYear), DraftTable(store));
  fmt::print("\nStage {}\n", session.config.Stage);
}

}  // namespace

void AddDraftCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "draft", "Run the NBA draft (Progress > Run NBA Draft), answering Yes; prints the picks");
  auto show = std::make_shared<bool>(false);
  cmd->add_flag("--show", *show, "Only show the players leaving early and the last draft");
  cmd->callback([&context, show] { RunDraftCommand(context, *show); });
}

}  // namespace courtmere::cli
