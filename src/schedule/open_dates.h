// The open-date table of a schedule pass: for each of the 30 slots, the
// schools (with their conferences) that have no game there yet and take a
// non-conference game, in the order the conference templates named them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "schedule/calendar_slots.h"

namespace courtmere {

struct OpenDate {
  std::string school;
  std::string conference;
};

struct OpenDates {
  std::array<std::vector<OpenDate>, kSlotCount + 1> slots;  // index 0 unused

  void Add(int slot, const std::string& school, const std::string& conference) {
    slots[slot].push_back({school, conference});
  }
};

}  // namespace courtmere
