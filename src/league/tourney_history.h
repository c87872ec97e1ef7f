// The year's row of NCTHistory or ACTHistory: the bubble of the selection
// (the last four in and the first four out) and, when the tournament ends,
// its Final Four and champion. The row is made when the year has none.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "league/tourney_field.h"

namespace courtmere {

class Store;

// `ranked` is the at-large list sorted by score, of which the first `in` are
// in: its places in - 3 to in are LastIn1 to LastIn4, in + 1 to in + 4
// FirstOut1 to FirstOut4 (blank past the end of the list).
void WriteBubble(Store& store, std::string_view table, int year, const std::vector<Entrant>& ranked,
                 int in);

void WriteFinalFour(Store& store, std::string_view table, int year,
                    const std::array<std::string, 4>& finalFour, const std::string& champion);

}  // namespace courtmere
