// The season's honours, picked from the in-memory statistics
// (session.seasonStats) and written to AwardWinners:
//   "week"                        player of the week, WeekNo the week
//   <conference>, <conference>F   all-conference and all-freshman teams,
//                                 WeekNo the slot 1 to 5
//   <conference>POY, NationalPOY  players of the year, WeekNo his position
//   FirstAA, SecondAA, ThirdAA    All America teams, WeekNo the position
//   NationalF                     national freshman team, WeekNo the slot
// Every figure written is rounded to one decimal.
#pragma once

#include <string>

namespace courtmere {

struct PlayerSeasonLine;
struct Session;

// The season award score of a player, from his season totals, weighted by
// his natural position. A man who played more games scores more.
double SeasonAwardScore(const PlayerSeasonLine& line);

// The week's best AwardScore among the first-division teams' players (above
// 0; among equals the first in store order holds) becomes player of the week
// for session.config.CurrWeek. Then every week figure and AwardScore of teams
// 1 to 149 is zeroed for the next week. A week in which no one scored above 0
// names no one.
void PickPlayerOfWeek(Session& session);

// Five men of one conference (or, with scope "National", of every
// first-division team), all of them or only freshmen (`kind` "All" or
// "Freshman"), in five slots that neighbouring positions share. The kind
// "All" also names the scope's player of the year.
void PickConferenceTeam(Session& session, const std::string& scope, const std::string& kind);

// The national player of the year and the three All America teams, each team
// one man of each position.
void PickNationalTeams(Session& session);

}  // namespace courtmere
