// What the offseason's commands share: the stage check and the tables they
// print.
#pragma once

#include <string>

#include "cli_context.h"

namespace courtmere::cli {

// Refuses unless the dynasty stands in `stage`.
void RequireOffseasonStage(Session& session, const char* stage, const char* command);

// The draft's picks as a table.
std::string DraftTable(Store& store);

}  // namespace courtmere::cli
