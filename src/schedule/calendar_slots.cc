#include "schedule/calendar_slots.h"

#include <array>

#include "schedule/schedule_error.h"

namespace courtmere {

std::string ConferenceTable(int leagueId) {
  if (leagueId < 1 || leagueId > 9) {
    throw ScheduleError("No schedule table belongs to league " + std::to_string(leagueId));
  }
  return "League" + std::to_string(leagueId) + "Schedule";
}

int DayOrder(std::string_view day) {
  static constexpr std::array<std::string_view, 7> kDays = {
      "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
  for (size_t i = 0; i < kDays.size(); ++i) {
    if (kDays[i] == day) return static_cast<int>(i) + 1;
  }
  return 0;
}

}  // namespace courtmere
