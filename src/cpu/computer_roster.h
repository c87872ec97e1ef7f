// Staff roles and depth charts of the teams the user doesn't coach.
//
// A depth chart is fifteen player ids on the team's row (PG1..C1 the
// starters, PG2..C2 and PG3..C3 the two bench rows) and the id of the one
// inactive player. PG1 = 0 marks a team whose chart must be built again; a
// built chart stands until something clears it.
#pragma once

#include <string>

#include "store/player_stats_store.h"

namespace courtmere {

struct Session;

// The pass over every Team row (the user's only while the auto-sim runs):
// coach roles, then a chart where PG1 is 0; then every ScrubTeam row. An
// error ends the pass with "The error occured in SetCPURoster. The error code
// is " and its code.
void SetCPURoster(Session& session);
void SetCPURoster(Session& session, bool autoSimRunning);

// Gives the coaches of a school an offensive, a defensive and a recruiting
// role, unless an offensive and a defensive coach stand already.
void SetCoachRoles(Session& session, const std::string& school);

// Builds the chart of a Team row. With onlyIfMissing = 1 a team whose PG1 is
// not 0 keeps its chart; with 0 the chart is always built anew. The user's
// team is judged by what his scouts see (ScoutOverall).
void SetTeamLineup(Session& session, const std::string& school, int onlyIfMissing);

// Builds the chart of a ScrubTeam row whose PG1 is 0.
void SetScrubLineup(Session& session, const std::string& school);

// Clear the team's inactive marks and choose the one inactive player: a
// redshirt, else the weakest man who can't play, else the weakest; 0 when
// the team has no players. The lineup then marks him.
int PickInactive(Session& session, const std::string& school);
int PickScrubInactive(Session& session, const std::string& school);

// Estimates the season line of every background player from his ratings
// into the in-memory statistics, `games` being his games played. A team
// without an entry takes the first free one, its players in id order.
void UpdateScrubStats(Session& session, PlayerStatsStore& stats, int games);

}  // namespace courtmere
