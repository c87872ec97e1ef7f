// What every courtmere-cli command shares: the global options and the session
// built from them.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cli_ui.h"
#include "history/dynasty_history.h"
#include "recruiting/season_recruiting.h"
#include "refusal.h"
#include "store/session.h"

namespace courtmere::cli {

struct CliContext {
  std::string home;              // --home; empty means the desktop program's folder
  std::optional<uint64_t> seed;  // --seed; fixed-seed mode when given
  CliUi ui;
  std::unique_ptr<Session> session;
  // The recruiting the season's run plugs in (its period lives as long as
  // the command).
  SeasonRecruiting recruiting;
  // The history steps End Season runs.
  DynastyHistory history;

  // Builds the session and runs the program's start-up (the store is open
  // afterwards). With a dynasty in the store, the random stream is the
  // dynasty's at its place in the calendar (see season/day_seed.h);
  // `SeedFrom::kOption` keeps the stream of --seed (or the clock) instead,
  // for a command that makes a dynasty.
  enum class SeedFrom { kDynasty, kOption };
  Session& StartSession(SeedFrom seedFrom = SeedFrom::kDynasty);
};

// The user's school, or, when the program folder holds no dynasty, a
// message and a Refusal.
std::string RequireDynasty(Session& session);

// A conference of the dynasty, or the message "League not found" and a
// Refusal.
void RequireConference(Session& session, const std::string& conference);

// Each command adds itself to the app; its callback runs the command.
void AddInitCommand(CLI::App& app, CliContext& context);
void AddExhibitionCommand(CLI::App& app, CliContext& context);
void AddBenchCommand(CLI::App& app, CliContext& context);
void AddSaveCommand(CLI::App& app, CliContext& context);
void AddLoadCommand(CLI::App& app, CliContext& context);
void AddNewCommand(CLI::App& app, CliContext& context);
void AddStartSeasonCommand(CLI::App& app, CliContext& context);
void AddStandingsCommand(CLI::App& app, CliContext& context);
void AddTeamsCommand(CLI::App& app, CliContext& context);
void AddScheduleCommand(CLI::App& app, CliContext& context);
void AddNonConfCommand(CLI::App& app, CliContext& context);
void AddSimCommand(CLI::App& app, CliContext& context);
void AddAutoSimCommand(CLI::App& app, CliContext& context);
void AddInboxCommand(CLI::App& app, CliContext& context);
void AddBoxCommand(CLI::App& app, CliContext& context);
void AddLogCommand(CLI::App& app, CliContext& context);
void AddBenchSeasonCommand(CLI::App& app, CliContext& context);
void AddPollCommand(CLI::App& app, CliContext& context);
void AddCriCommand(CLI::App& app, CliContext& context);
void AddAwardsCommand(CLI::App& app, CliContext& context);
void AddBracketCommand(CLI::App& app, CliContext& context);
void AddOptionsCommand(CLI::App& app, CliContext& context);
void AddStaffCommand(CLI::App& app, CliContext& context);
void AddLineupCommand(CLI::App& app, CliContext& context);
void AddRecruitsCommand(CLI::App& app, CliContext& context);
void AddRecruitCommand(CLI::App& app, CliContext& context);
void AddRecruitingCommand(CLI::App& app, CliContext& context);
void AddEndSeasonCommand(CLI::App& app, CliContext& context);
void AddSigningsCommands(CLI::App& app, CliContext& context);
void AddReviewCommand(CLI::App& app, CliContext& context);
void AddJobsCommand(CLI::App& app, CliContext& context);
void AddTakeJobCommand(CLI::App& app, CliContext& context);
void AddDraftCommand(CLI::App& app, CliContext& context);
void AddBeginOffseasonCommand(CLI::App& app, CliContext& context);
void AddTrainingCommand(CLI::App& app, CliContext& context);
void AddTrainCommand(CLI::App& app, CliContext& context);
void AddDevelopmentCommand(CLI::App& app, CliContext& context);
void AddDynastyCommand(CLI::App& app, CliContext& context);
void AddBenchYearCommand(CLI::App& app, CliContext& context);
void AddLiveCommand(CLI::App& app, CliContext& context);
void AddRecordsCommand(CLI::App& app, CliContext& context);
void AddHistoryCommand(CLI::App& app, CliContext& context);
void AddCoachCommand(CLI::App& app, CliContext& context);
void AddTopCoachesCommand(CLI::App& app, CliContext& context);
void AddPlayerCommand(CLI::App& app, CliContext& context);
void AddExportCommand(CLI::App& app, CliContext& context);

}  // namespace courtmere::cli
