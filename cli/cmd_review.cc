// courtmere-cli review: the head-coach review (Management > View
// Performance), field by field as the screen shows it.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/coach_review.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunReview(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const CoachReview review = LoadCoachReview(session.Db());
  fmt::print("{}\n", review.Caption);
  TextTable table;
  table.AddColumn("", "", TextTable::kLeft);
  table.AddColumn("", "", TextTable::kLeft);
  for (const auto& [label, value] : review.Fields) table.AddRow({label, value});
  fmt::print("{}", table.Render());
}

}  // namespace

void AddReviewCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("review", "The head coach's review by his school's board");
  cmd->callback([&context] { RunReview(context); });
}

}  // namespace courtmere::cli
