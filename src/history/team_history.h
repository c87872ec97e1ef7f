// A season's results turned into each school's history: all-time wins and
// games, titles, NCT and ACT counters, its TeamHistory line of the year; for
// the user's school also his HeadCoach career, PrestigeChange and the year's
// CoachHistory row; then the year's coach ranks.
//
// Runs once a year at the end of the season, after the team ratings (so
// Prestige is the new one and InitialPrestige still last year's) and before
// the year's marks on Team are cleared.
#pragma once

#include <string>

namespace courtmere {

class Store;

// `userSchool` is the user's school (empty for none); `year` the risen
// CurrYear: the coach's history row of the season is the one of year - 1.
void SaveTeamHistory(Store& store, const std::string& userSchool, int year);

}  // namespace courtmere
