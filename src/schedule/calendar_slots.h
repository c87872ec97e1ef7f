// The game days of weeks 1 to 15 on which conference and non-conference
// games stand, numbered as slots: slot k is week (k + 1) / 2, on Thursday when
// k is odd and on Saturday when k is even. Slot 1 is Thursday of week 1,
// slot 30 Saturday of week 15.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

inline constexpr int kSlotCount = 30;

inline constexpr std::string_view kThursday = "Thursday";
inline constexpr std::string_view kFriday = "Friday";
inline constexpr std::string_view kSaturday = "Saturday";
inline constexpr std::string_view kSunday = "Sunday";

constexpr int SlotWeek(int slot) {
  return (slot + 1) / 2;
}
constexpr std::string_view SlotDay(int slot) {
  return slot % 2 == 1 ? kThursday : kSaturday;
}
constexpr int SlotOf(int week, bool saturday) {
  return 2 * week - (saturday ? 0 : 1);
}

// The conference schedule table of League row `leagueId`:
// "League<id>Schedule". Throws ScheduleError for an id outside 1 to 9, so
// that no other text ever becomes part of a statement.
std::string ConferenceTable(int leagueId);

// The position of a day name in the week, Monday 1 to Sunday 7; 0 for any
// other text.
int DayOrder(std::string_view day);

}  // namespace courtmere
