// The NCT's and the ACT's year by year history: the champion, the other
// three of the Final Four, the last four in and the first four out.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

class Store;

inline constexpr std::array<const char*, 7> kTourneyHistoryColumns = {
    "Year",        "Champion",     "Final Four2",   "Final Four3",
    "Final Four4", "Last Four In", "First Four Out"};

// `table` is "NCTHistory" or "ACTHistory"; rows oldest first.
std::vector<std::array<std::string, 7>> TourneyHistory(Store& store, const std::string& table);

}  // namespace courtmere
