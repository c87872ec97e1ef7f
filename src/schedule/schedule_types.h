// The conference schedule types (League.SchedType): the template each runs,
// how its schools are put on slots, and the open dates it leaves for
// non-conference games.
#pragma once

#include <array>
#include <bitset>
#include <string_view>
#include <vector>

#include "schedule/calendar_slots.h"
#include "schedule/schedule_templates.h"

namespace courtmere {

// Slots 1 to 30 (index 0 unused).
using SlotSet = std::bitset<kSlotCount + 1>;

// How a draw R from 1 to 100 orders the schools onto slots 1, 2, 3, ...
enum class SlotOrder {
  kNameOrPrestige,  // "9", "11", "13", "14A", "14B"
  kSchedGroup,      // "8", "10", "12A", "12B", "12C": travel partners side by side
};

struct ScheduleType {
  std::string_view code;
  int teams = 0;                            // schools of the conference, or of each division
  TemplateTable table = TemplateTable::k8;  // the conference's table, or each division's
  bool twoDivisions = false;
  TemplateTable cross = TemplateTable::k8;  // with two divisions: the cross table
  std::array<std::string_view, 2> divisions{};
  SlotOrder order = SlotOrder::kNameOrPrestige;
};

// The type of a SchedType code; null for a code the program does not know.
const ScheduleType* FindScheduleType(std::string_view code);

// Every game of the type's template in the order they are added: for two
// divisions the first division's table, then the second's, then the cross
// table. A side's division says which division's slots it names.
std::vector<TemplateGame> ConferenceTemplate(const ScheduleType& type);

// The ORDER BY clause that a draw R puts the schools onto slots by.
std::string_view SlotOrderClause(SlotOrder order, int r);

// The template's own open dates of the school on `slot` of `division` (0 the
// first, 1 the second; 0 for one-division types). `playing` holds the slots
// on which the template gives the school a conference game.
SlotSet TemplateOpenDates(const ScheduleType& type, std::string_view conference, int division,
                          int slot, const SlotSet& playing);

}  // namespace courtmere
