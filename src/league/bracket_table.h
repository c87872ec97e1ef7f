// The rows of a bracket table: one per team and slot, grouped by a
// conference (ConfTourney), a region or the finals (NCTTourney, ACTTourney).
// A slot holds at most one row: a row is only added to an empty slot, so a
// round taken twice moves nobody on twice.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace courtmere {

class Store;

struct BracketTable {
  std::string_view name;  // the table
  bool hasHost = false;   // it has a HostCity column
  // The NCT's first-weekend games name a seed's team "<seed>. <school>"; a
  // winner goes on under the school's name alone, so no later game carries
  // a seed.
  bool seedNames = false;
};

inline constexpr BracketTable kConfTourney{"ConfTourney", true, false};
inline constexpr BracketTable kNctTourney{"NCTTourney", true, true};
inline constexpr BracketTable kActTourney{"ACTTourney", false, false};

// The highest slot that holds a seed in a table that names seeds.
inline constexpr int kLastSeedSlot = 16;

struct SlotRow {
  std::string school;
  std::string host;
  int points = 0;
  int bold = 0;
};

std::optional<SlotRow> ReadSlot(Store& store, const BracketTable& table, std::string_view group,
                                int slot);

// Every row of a group, by slot.
std::map<int, SlotRow> ReadGroup(Store& store, const BracketTable& table, std::string_view group);

// Adds the row of `slot` unless the slot holds one; true when it was added.
bool InsertSlot(Store& store, const BracketTable& table, std::string_view group, int slot,
                const std::string& school, const std::string& host);

// The score of the game played out of `slot`, and whether it was won.
void WriteSlotResult(Store& store, const BracketTable& table, std::string_view group, int slot,
                     int points, bool won);

// The name the team of `slot` plays under: "<seed>. <school>" for a seed of
// the NCT, the school otherwise.
std::string GameName(const BracketTable& table, int slot, const std::string& school);

}  // namespace courtmere
