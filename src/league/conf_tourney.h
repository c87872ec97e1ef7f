// The conference tournaments of week 16: every conference of League plays a
// single-elimination tournament of its whole field, Thursday to Sunday, in
// its own schedule table, and its champion takes the automatic bid of the
// NCT (Team.Winner = 1). The bracket stands in ConfTourney (see
// bracket_slots.h for its slots); HostCity is the school at the top of the
// standings.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

class Store;
struct Session;

// The field size a conference's schedule type stands for: the type itself
// when it has at most two characters, else its first two ("12C" gives "12").
std::string ConfTourneySize(std::string_view schedType);

// The field of a conference's tournament as its schedule type sets it; 0 for
// a conference League does not hold.
int ConfTourneyField(Store& store, const std::string& conference);

// At the end of week 15: seeds the conference by its standings (with
// divisions, the best team of the other division is seed 2), writes its
// ConfTourney rows and Thursday's games. A field outside 8 to 14 teams, or
// one that differs from `size`, is refused with a message naming the
// conference, and nothing is written. A conference already set up is left
// as it is.
void SetupConfTourney(Session& session, const std::string& conference, const std::string& size);

// After the games of `day` of week 16: the day's results go into the
// bracket, then the next day's games are written; after Sunday's final the
// champion's Team.Winner becomes 1. Safe to run again for the same day.
void AdvanceConfTourney(Session& session, const std::string& conference, int week,
                        const std::string& day);

}  // namespace courtmere
