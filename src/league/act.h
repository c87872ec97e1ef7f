// The ACT, chosen right after the NCT on the Sunday of week 16: the best 32
// by selection score of the first 49 schools of the poll that are not in
// the NCT, eight seeds in each region, with no sites and no conference
// separation. Its seeds stand in ACTTourney's slots 21 to 28.
#pragma once

#include <string>
#include <vector>

#include "league/tourney_field.h"

namespace courtmere {

class Store;
struct Session;

inline constexpr int kActField = 32;

// The field sorted by selection score, with the year's bubble written to
// ACTHistory. Throws TourneyError when the poll holds too few schools.
std::vector<Entrant> SelectActField(Store& store, int year);

// The selection, the regions, ACTTourney's seeds and Tuesday's and
// Wednesday's games of week 17. Returns false, and does nothing, when
// ACTTourney has rows already.
bool SetupAct(Session& session);

}  // namespace courtmere
