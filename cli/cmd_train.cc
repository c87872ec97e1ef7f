// courtmere-cli train: Off Season > Train Players, answering Yes: every
// player develops, the signed recruits join, the new year is set up and the
// dynasty stands in "Post Training".
#include <fmt/format.h>

#include "cli_context.h"
#include "offseason/career_steps.h"
#include "offseason/train_players.h"
#include "offseason_command.h"

namespace courtmere::cli {

namespace {

void RunTrain(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  RequireOffseasonStage(session, kStageBeginOffSeason, "Train Players");
  Store& store = session.Db();
  const int64_t signings =
      store.ScalarInt("SELECT count(*) FROM Recruit WHERE TeamChoice = ?", school).value_or(0);
  if (!TrainPlayers(session, CoachCareer())) throw Refusal{};
  fmt::print("Players trained; {} signed recruit(s) joined {}, which has {} players\n", signings,
             school,
             store.ScalarInt("SELECT count(*) FROM Player WHERE Team = ?", school).value_or(0));
  fmt::print("Stage {}; `development` shows the report\n", session.config.Stage);
}

}  // namespace

void AddTrainCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd =
      app.add_subcommand("train", "Train Players (Off Season > Train Players), answering Yes");
  cmd->callback([&context] { RunTrain(context); });
}

}  // namespace courtmere::cli
