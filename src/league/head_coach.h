// The user's own row: HeadCoach holds his name, his school and what the
// school expects of him. A fired coach's school reads "Fired-<school>".
#pragma once

#include <string>

namespace courtmere {

class Store;

// Writes the user's HeadCoach row.
void AddHeadCoach(Store& store, const std::string& name, const std::string& school,
                  int expectations);

// The user's school from the first HeadCoach row, without the prefix of a
// fired coach; empty when there is no row.
std::string HumanSchool(Store& store);

// The conference of the user's school; empty when there is no dynasty.
std::string HumanConference(Store& store);

}  // namespace courtmere
