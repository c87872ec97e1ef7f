// courtmere-cli: the program's flows without the desktop window.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <system_error>

#include "cli_context.h"
#include "store/store_files.h"

namespace {

// The exit status of every refusal and failure.
constexpr int kRefused = 2;

// The program's own words for a failure no command foresaw.
std::string FailureMessage(courtmere::cli::CliContext& context, const std::exception& error) {
  if (context.session) return courtmere::DescribeStoreFailure(*context.session, error);
  // The program folder itself could not be made.
  if (const auto* e = dynamic_cast<const std::system_error*>(&error)) {
    const std::filesystem::path home = context.home.empty()
                                           ? courtmere::ProgramFolder::DefaultRoot()
                                           : std::filesystem::path(context.home);
    return courtmere::DescribeWriteFailure(home, e->code().value());
  }
  return error.what();
}

}  // namespace

int main(int argc, char** argv) {
  courtmere::cli::CliContext context;
  CLI::App app{"Courtmere, a college-basketball head-coach simulation, on the command line"};
  app.require_subcommand(1);
  app.add_option("--home", context.home,
                 "The program folder (default: the desktop program's folder)");
  app.add_option("--seed", context.seed, "Fix the random seed so a run replays exactly");

  courtmere::cli::AddInitCommand(app, context);
  courtmere::cli::AddExhibitionCommand(app, context);
  courtmere::cli::AddBenchCommand(app, context);
  courtmere::cli::AddNewCommand(app, context);
  courtmere::cli::AddStartSeasonCommand(app, context);
  courtmere::cli::AddStandingsCommand(app, context);
  courtmere::cli::AddTeamsCommand(app, context);
  courtmere::cli::AddScheduleCommand(app, context);
  courtmere::cli::AddNonConfCommand(app, context);
  courtmere::cli::AddBracketCommand(app, context);
  courtmere::cli::AddSaveCommand(app, context);
  courtmere::cli::AddLoadCommand(app, context);
  courtmere::cli::AddSimCommand(app, context);
  courtmere::cli::AddAutoSimCommand(app, context);
  courtmere::cli::AddInboxCommand(app, context);
  courtmere::cli::AddBoxCommand(app, context);
  courtmere::cli::AddLogCommand(app, context);
  courtmere::cli::AddBenchSeasonCommand(app, context);
  courtmere::cli::AddPollCommand(app, context);
  courtmere::cli::AddCriCommand(app, context);
  courtmere::cli::AddAwardsCommand(app, context);
  courtmere::cli::AddOptionsCommand(app, context);
  courtmere::cli::AddStaffCommand(app, context);
  courtmere::cli::AddLineupCommand(app, context);
  courtmere::cli::AddRecruitsCommand(app, context);
  courtmere::cli::AddRecruitCommand(app, context);
  courtmere::cli::AddRecruitingCommand(app, context);
  courtmere::cli::AddEndSeasonCommand(app, context);
  courtmere::cli::AddSigningsCommands(app, context);
  courtmere::cli::AddReviewCommand(app, context);
  courtmere::cli::AddJobsCommand(app, context);
  courtmere::cli::AddTakeJobCommand(app, context);
  courtmere::cli::AddDraftCommand(app, context);
  courtmere::cli::AddBeginOffseasonCommand(app, context);
  courtmere::cli::AddTrainingCommand(app, context);
  courtmere::cli::AddTrainCommand(app, context);
  courtmere::cli::AddDevelopmentCommand(app, context);
  courtmere::cli::AddDynastyCommand(app, context);
  courtmere::cli::AddBenchYearCommand(app, context);
  courtmere::cli::AddLiveCommand(app, context);
  courtmere::cli::AddRecordsCommand(app, context);
  courtmere::cli::AddHistoryCommand(app, context);
  courtmere::cli::AddCoachCommand(app, context);
  courtmere::cli::AddTopCoachesCommand(app, context);
  courtmere::cli::AddPlayerCommand(app, context);
  courtmere::cli::AddExportCommand(app, context);

  // Every refusal and failure ends here: its message on standard error and
  // the status 2. A command that has stored its work and then failed at a
  // clean-up says so itself and ends normally.
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    // --help and --version end with 0; a bad option or value is refused.
    const int status = app.exit(e);
    return status == 0 ? 0 : kRefused;
  } catch (const courtmere::cli::Refusal& refusal) {
    if (!refusal.message.empty()) context.ui.Message(refusal.message);
    return kRefused;
  } catch (const std::exception& e) {
    context.ui.Message(FailureMessage(context, e));
    return kRefused;
  }
  return 0;
}
