// The conferences and schools of a new dynasty, copied from the seed tables:
// the six fixed conferences (League ids 1 to 6) with their schools, then the
// three low conferences the user chooses (ids 7, 8 and 9) with theirs.
#pragma once

#include <array>
#include <string>

namespace courtmere {

class Store;
struct Session;

// The six fixed conferences and every school of TeamSetup, each with a
// TeamStats row; the calendar at Thursday of week 1.
void SetupLeagues(Session& session);

// League rows 7, 8 and 9 for the three chosen conferences, in the order
// given. A conference missing from LeagueSetup gets "League not found" and
// nothing is written; returns false then.
bool AddChosenConferences(Session& session, const std::array<std::string, 3>& conferences);

// A Team and a TeamStats row for every school of the chosen conferences.
void AddChosenTeams(Session& session);

}  // namespace courtmere
