// courtmere-cli: the program's flows without the desktop window.
#include <CLI/CLI.hpp>
#include <iostream>

#include "cli_context.h"

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
  courtmere::cli::AddRecruitsCommand(app, context);
  courtmere::cli::AddRecruitCommand(app, context);
  courtmere::cli::AddRecruitingCommand(app, context);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e);
  } catch (const courtmere::cli::Refusal&) {
    return 2;
  } catch (const std::exception& e) {
    std::cerr << "courtmere-cli: " << e.what() << '\n';
    return 1;
  }
  return 0;
}
