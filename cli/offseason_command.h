// What the offseason's commands share: the stage check, the head coach's
// career steps as the tool plugs them in, and the tables they print.
#pragma once

#include <string>

#include "cli_context.h"

namespace courtmere {
class CareerSteps;
}

namespace courtmere::cli {

// Refuses unless the dynasty stands in `stage`.
void RequireOffseasonStage(Session& session, const char* stage, const char* command);

// The career library's steps; none until it is wired in.
CareerSteps& ToolCareerSteps();

// The draft's picks as a table.
std::string DraftTable(Store& store);

}  // namespace courtmere::cli
