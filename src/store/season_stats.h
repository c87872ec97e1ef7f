// The season's individual statistics between memory and the store.
//
// During a season the figures live in Session::seasonStats: the first teams
// in Team table order, then the background teams in ScrubTeam order, each
// team's players in slots by ascending Id. They reach the store when the
// dynasty is saved (and at the end of the season) and come back when a save
// is loaded.
#pragma once

namespace courtmere {

struct Session;

// Fills the session's statistics from PlayerStats and WeekAward (first-
// division players) and from the season line of ScrubPlayer rows.
void LoadSeasonStats(Session& session);

// Writes the session's statistics: PlayerStats anew for every first-division
// player, his WeekAward row, and the season line of every background player,
// in one transaction.
void SaveSeasonStats(Session& session);

}  // namespace courtmere
