// Putting a national tournament's field into its four regions.
//
// The field comes sorted by selection score: its first four are the seed-1
// line, the next four the seed-2 line, and so on. Each line is placed in two
// passes: a school goes to its home region if that region's place on the
// line is free, and the schools left take the free regions in the order
// East, West, Midwest, South.
//
// The NCT then keeps conference mates apart (SeparateConferences): in a first
// pass out of one half of a region, in a second, which takes what the first
// left, out of each other's way in the first two rounds. A conflict is
// settled by swapping the school at the conflicting seed with the school at
// the same seed of another region.
#pragma once

#include <array>
#include <vector>

#include "league/tourney_field.h"

namespace courtmere {

// Four regions in the order of kRegions; each indexed by seed, from 1
// (index 0 unused).
using RegionBrackets = std::array<std::vector<Entrant>, 4>;

// Places `seeds` lines of four; `field` holds at least 4 * seeds entrants.
RegionBrackets PlaceSeedLines(const std::vector<Entrant>& field, int seeds);

// The two separation passes over the sixteen seeds of each region.
//
// Design decision: a turn lists at most sixteen conflicts, as many as its
// list has room for; a seventeenth (only a region with very many mates of
// one conference makes one) is left as it stands.
void SeparateConferences(RegionBrackets& brackets);

}  // namespace courtmere
