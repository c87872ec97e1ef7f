// Grading the whole league anew, as an old store's upgrade needs.
#pragma once

namespace courtmere {

struct Session;

// Every Player row's ten grades and ScoutOverall worked out afresh through the
// scout who judges him, in one transaction. A player whose team has no scout
// keeps what he has.
void GradeAllPlayers(Session& session);

}  // namespace courtmere
