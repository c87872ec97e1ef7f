// The user's ranking of his recruits (RecruitNo 1 to 5): the order of his
// board and of the scouts' reports on his first, second and third man.
#pragma once

#include <map>

#include "recruiting/recruit_reply.h"

namespace courtmere {

struct Session;

// Writes the ranks given (player id to rank, 1 to 5) over the list's
// present ones; refuses a rank outside 1 to 5, a player not on the list,
// and two recruits of the same rank. With `wholeList` the ranks are the
// list's whole ranking: a recruit not named loses his rank.
RecruitReply RankRecruits(Session& session, const std::map<int, int>& ranks,
                          bool wholeList = false);

// The refusal to leave the board: five recruits of whom one has no rank.
constexpr const char* kRankBeforeExit = "Please rank your recruits before exiting.";
bool RanksMissing(Session& session);

}  // namespace courtmere
