// What the set-up screens show of a school: where it is, how big it is, its
// colours, and its prestige read through the bands.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "screens/display_format.h"

namespace courtmere {

class Store;

struct SchoolSnapshot {
  std::string Location;
  std::string State;
  std::string Population;     // through the number format "0,000"
  std::string ArenaCapacity;  // likewise
  std::string Colors;
  std::string Prestige;      // the band's label
  std::string Expectations;  // the band's expectation text
};

// A low-conference school from the seed table, by its seed Prestige, and a
// school of the dynasty, by its InitialPrestige. Empty fields when there is
// no such school.
SchoolSnapshot LowLeagueSnapshot(Store& store, const std::string& school);
SchoolSnapshot TeamSnapshot(Store& store, const std::string& school);

// The grid of the team choice, label and value: "Location:", "Population:",
// "Arena Cap.:", "Colors:", "Prestige:", "Expectations:".
std::vector<std::pair<std::string, std::string>> TeamGrid(const SchoolSnapshot& snapshot);

}  // namespace courtmere
