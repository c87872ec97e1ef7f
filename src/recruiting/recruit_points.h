// The weekly budget of recruiting points, the same rule for the user and the
// computer teams: the period's base, less what the team pays its staff, plus
// a bonus for last week's results, a player of the week, men bound for the
// NBA and less for suspended men.
#pragma once

#include <string>

#include "recruiting/recruiting_period.h"

namespace courtmere {

class Store;
struct Session;

// The salaries of the team's coaches, its head scout and its head trainer.
int RecruitingPayroll(Store& store, const std::string& team);

// The bonus of the week before CurrWeek: +10 or -10 for each home and away
// game (looked up in the user's conference table, else the non-conference
// table), +15 for the player of that week, from week 3 +5 for each
// non-senior bound for the NBA, -5 for each suspended man.
int PerformanceBonus(Session& session, const std::string& team);

// Sets `points` to the team's budget in a Contact, Evaluation or Quiet
// period; in any other period leaves it as it was. The result has no floor.
void WeeklyRecruitPoints(Session& session, const std::string& team, RecruitingPeriod period,
                         int& points);

// The start of a week: the user's PointsAvail is set (not added to) to his
// budget, at least 10, and his WeekDecision rows go back to "none".
void SetUserWeeklyPoints(Session& session, RecruitingPeriod period);

// The user's points left this week.
int UserPointsAvail(Session& session);

}  // namespace courtmere
