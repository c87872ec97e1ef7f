// Clearing last season before a new one starts: injuries healed, last
// year's letters, recruiting budgets, tournament sites and awards gone, the
// box scores of the season filed away when the user keeps them, and the
// calendar at Thursday of week 1 in stage "Season".
#pragma once

namespace courtmere {

struct Session;

void ClearOldSeason(Session& session);

}  // namespace courtmere
