// The tables a season's games stand in: NonConfSchedule for the league, and
// one table per conference ("League<Id>Schedule", in League order) that also
// holds the conference tournament and the national tournaments.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

// The conferences of the dynasty in League order.
std::vector<std::string> LeagueConferences(Store& store);

// "League<Id>Schedule" of a conference, or "" when it has no League row.
std::string ScheduleTableOf(Store& store, const std::string& conference);

// NonConfSchedule, then every conference's table in League order.
std::vector<std::string> SeasonScheduleTables(Store& store);

// The table that holds the game numbered `gameNo`, or "" when none does.
std::string TableOfGame(Store& store, int gameNo);

}  // namespace courtmere
