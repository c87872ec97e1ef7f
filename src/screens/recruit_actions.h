// The operations the recruiting screens offer on one recruit, as the user
// meets them: the screen's own refusals first (a recruit not on the list, an
// action the period does not offer, a bid that is no value of the bid list,
// a scholarship after week 15), then the question, then the operation.
// Each answers what it did; its message is for the caller to show. A No to
// the question answers not done with no message, and nothing is written.
#pragma once

#include <string>

#include "recruiting/recruit_reply.h"
#include "recruiting/recruiting_period.h"

namespace courtmere {

struct Session;

// Add from any of the pool's lists; refuses an id that is no recruit.
RecruitReply AskAddRecruit(Session& session, int playerId);
RecruitReply AskRemoveRecruit(Session& session, int playerId);
RecruitReply AskClearDecision(Session& session, int playerId);
RecruitReply AskOfferScholarship(Session& session, int playerId);
RecruitReply AskRescindScholarship(Session& session, int playerId);

// A bid asks no question.
RecruitReply BidOnRecruit(Session& session, RecruitingPeriod period, int playerId,
                          const std::string& action, int bid);

// The refusal of the bid button when no point is left.
inline constexpr const char* kNoPointsLeft =
    "You have no more recruiting points for this week. If you wish to change your allocation of "
    "points, you can click the Clear Decision button on a player.";

}  // namespace courtmere
