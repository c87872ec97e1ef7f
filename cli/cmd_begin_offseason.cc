// courtmere-cli begin-offseason: Progress > Begin Offseason, answering Yes:
// the leavers go and the dynasty stands in "Begin OffSeason".
#include <fmt/format.h>

#include "cli_context.h"
#include "offseason/begin_offseason.h"
#include "offseason_command.h"

namespace courtmere::cli {

namespace {

void RunBeginOffseason(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  RequireOffseasonStage(session, kStageNbaDraft, "Begin Offseason");
  Store& store = session.Db();
  const int64_t leaving =
      store.ScalarInt("SELECT count(*) FROM Player WHERE NBAFlag = 1").value_or(0);
  const int64_t ownLeaving =
      store.ScalarInt("SELECT count(*) FROM Player WHERE NBAFlag = 1 AND Team = ?", school)
          .value_or(0);
  if (BeginOffseason(session) != OffseasonBegin::kBegun) throw Refusal{};
  fmt::print(
      "{} players left college ({} of {}); {} players remain at {}\n", leaving, ownLeaving, school,
      store.ScalarInt("SELECT count(*) FROM Player WHERE Team = ?", school).value_or(0), school);
  fmt::print("Stage {}\n", session.config.Stage);
}

}  // namespace

void AddBeginOffseasonCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand(
      "begin-offseason", "Begin the offseason (Progress > Begin Offseason), answering Yes");
  cmd->callback([&context] { RunBeginOffseason(context); });
}

}  // namespace courtmere::cli
