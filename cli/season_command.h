// What the commands that play or read the season share. The tool runs one
// process per command, so each starts from the store: the calendar, the
// season's individual figures and the inbox are read back as a load does,
// and a command that plays writes the figures back inside every day's
// transaction, so that a stored day never lacks them.
#pragma once

#include <memory>

#include "cli_context.h"
#include "season/season_run.h"

namespace courtmere::cli {

// The season driver on the program folder's dynasty, resumed from the store.
std::unique_ptr<SeasonRun> ResumeSeasonRun(CliContext& context);

// Refuses unless the dynasty stands in the stage "Season" (the menus offer
// Sim Day and the auto-sim only then).
void RequireSeasonStage(Session& session);

// The poll's first five as "1. Duke, 2. Kansas, ..."; empty before any poll.
std::string PollTopFive(Store& store);

}  // namespace courtmere::cli
