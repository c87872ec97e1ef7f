// The user's action of the week on one recruit: a call, an assistant's
// visit, a head coach's visit or a campus visit, each with a bid of points.
//
// A week allows one Visit, one CampusVisit, two Assistant and any number of
// Calls, one action per recruit; a recruit takes at most 2 home visits, 3
// assistant visits and 1 campus visit in a season, and the season's campus
// visits and head coach visits are bounded by the team's scholarships.
#pragma once

#include <string>

#include "recruiting/recruit_reply.h"

namespace courtmere {

struct Session;

// Records `action` with `bid` points on the user's recruit `playerId`, or
// refuses with the first rule broken, in the order the rows are read: the
// recruit's own limits, the other recruits' actions this week, the season's
// limits, and last the points left. Nothing is written on a refusal.
RecruitReply RecordRecruitDecision(Session& session, const std::string& action, int playerId,
                                   int bid);

// Undoes this week's action on the recruit: its count and the team's total
// go down by one (not below 0) and the bid comes back to PointsAvail.
// Refuses a recruit with no decision this week.
RecruitReply ClearRecruitDecision(Session& session, int playerId);

}  // namespace courtmere
