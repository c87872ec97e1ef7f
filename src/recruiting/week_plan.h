// A computer team's recruiting week: a fixed plan of five actions by week,
// paid from the team's weekly budget in list order, so that the first
// recruit of a poor team gets the largest share. The same plan serves the
// user's school while the computer runs it (the auto-sim).
#pragma once

#include <array>
#include <string>

#include "recruiting/recruiting_period.h"

namespace courtmere {

struct Session;

// The plan's five actions for `week` (2 to 12) given the team's
// scholarships; Action(1..5) at 0..4.
std::array<std::string, 5> PlannedActions(int week, int scholarships);

// The points an action bids from the `points` left, by the rules of its
// kind: a campus visit 40, a visit 30, an assistant 20, a call 10, each
// falling to the next kind's rule when the points are short. Below 10 points
// every action is a Call, and a Call takes all that is left, even a negative
// amount.
int PlannedBid(std::string& action, int points);

// One team's week (`user` when it is the user's school under the auto-sim:
// his own bids of the week stand, and then the plan does nothing).
void TeamWeekRecruiting(Session& session, const std::string& school, int week,
                        RecruitingPeriod period, bool user);

// Every computer team's week, the user's too when `userToo`.
void RunCPURecruiting(Session& session, int week, RecruitingPeriod period, bool userToo);

}  // namespace courtmere
