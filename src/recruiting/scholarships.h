// The scholarships the user may offer his recruits. From week 3 the
// allowance is Team.Scholarships, written for every team at the end of week
// 2; before that it is worked out from the roster: the seniors who will
// leave, plus 13, less the players on the team, at most 5.
#pragma once

#include "recruiting/recruit_reply.h"

namespace courtmere {

struct Session;

// Offers and rescinding stop after week 15.
inline constexpr int kLastScholarshipWeek = 15;

// Which seniors count as leaving in weeks 1 and 2: the screen's scrolls
// count those not redshirting, the offer counts them all.
enum class SeniorCount { kScreen, kOffer };

int ScholarshipAllowance(Session& session, SeniorCount seniors);

// The user's recruits who hold an offer.
int ScholarshipsOffered(Session& session);

// Offers a scholarship while the allowance has one left.
RecruitReply OfferScholarship(Session& session, int playerId);

void RescindScholarship(Session& session, int playerId);

}  // namespace courtmere
