// The per-team values worked out at a new dynasty and at every season's end:
// the team's strength (the sum of its seven best Overall values), its best
// returning man at each position, its prestige, its television games and the
// scholarships it may offer. Background teams get strength and prestige only.
//
// Prestige moves slowly: 85% of the school's standing (InitialPrestige) and
// 15% of the roster's strength, blended with a history term Q that grows with
// titles and tournament runs over the dynasty's years and with the alumni in
// the professional league, and that a good or a poor season nudges.
#pragma once

#include <string>

namespace courtmere {

class Rng;
class Store;
struct Session;

// The nudge a season's win fraction f (0 to 1) gives to Q.
double WinFractionCorrection(Rng& rng, double q, double f);

// The scholarships a school may offer: its players leaving for the draft,
// plus a full roster's 13, less its players, at most 5.
int Scholarships(Store& store, const std::string& school);

// TeamRating, TopPG to TopC, Prestige, TVGames and Scholarships of every
// Team row.
void TeamRatings(Session& session);

// TeamRating and Prestige of every ScrubTeam row.
void ScrubTeamRatings(Session& session);

}  // namespace courtmere
