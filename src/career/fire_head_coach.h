// The board's dismissal of the user: his school goes back to the computer,
// his HeadCoach row reads "Fired-<school>" until he takes another job, and
// the Athletic Director writes to him.
#pragma once

#include <string>

namespace courtmere {

struct Session;

void FireHeadCoach(Session& session, const std::string& school);

}  // namespace courtmere
