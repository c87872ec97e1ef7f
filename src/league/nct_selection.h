// The selection of the NCT on the Sunday of week 16: 64 teams, the 31
// conference champions (Team.Winner or ScrubTeam.Winner = 1) and 33 at
// large, seeded 1 to 16 in four regions, placed at their sites, with the
// first round's games written.
//
// The at-large teams are the best 33 by selection score of the first 60
// schools of the poll without an automatic bid. The whole field is then
// sorted by the same score: its first four are the seed-1 line.
#pragma once

#include <string>
#include <vector>

#include "league/tourney_field.h"

namespace courtmere {

class Store;
struct Session;

inline constexpr int kNctField = 64;

// The automatic qualifiers, Team's before ScrubTeam's, with their poll
// points.
std::vector<Entrant> AutomaticBids(Store& store);

// The field sorted by selection score, with the year's bubble written to
// NCTHistory.
//
// Design decision: the at-large places are the 64 the automatic bids leave,
// so a store whose count of champions is not 31 (edited by hand) still
// draws a full field; more than 64 champions, or too few candidates, throw
// TourneyError.
std::vector<Entrant> SelectNctField(Store& store, int year);

// The selection, the regions, the sites, NCTTourney's seeds and Thursday's
// and Friday's games of week 17. Returns false, and does nothing, when
// NCTTourney has rows already.
bool SetupNct(Session& session);

}  // namespace courtmere
