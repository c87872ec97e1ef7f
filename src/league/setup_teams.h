// Everything a new dynasty needs once the user has chosen his conferences,
// his school and his name: staff, rosters, the background field, ratings,
// standings rows, schedules and the first offseason tasks. It ends in stage
// "Post Training", where the user sets his staff and non-conference schedule
// before he starts the first season.
#pragma once

#include <string>

namespace courtmere {

struct Session;

// Runs in one transaction: a failure leaves the store as it was before.
void SetupTeams(Session& session, const std::string& school);

}  // namespace courtmere
