// The season's calendar: twenty weeks of fixed game days, and the pure
// functions that walk it. The day step moves the dynasty forward with
// NextDay; the day screen walks it both ways without changing the store.
//
//   week 1       Thursday, Friday, Saturday, Sunday
//   weeks 2-4    Thursday, Saturday
//   week 5       Saturday only (reached as Thursday and turned into Saturday)
//   weeks 6-15   Thursday, Saturday
//   week 16      Thursday, Friday, Saturday, Sunday
//   week 17      Tuesday to Sunday
//   week 18      Monday, Wednesday to Sunday
//   week 19      Monday, Wednesday, Saturday
//   week 20      Monday; its step leads to Monday of week 21, the season's end
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct CalendarDay {
  int week = 1;
  std::string day = "Thursday";

  bool operator==(const CalendarDay&) const = default;
};

inline constexpr int kLastSeasonWeek = 20;
inline constexpr int kSeasonOverWeek = 21;

// The game days of a week, in order (week 21 has Monday only).
const std::vector<std::string>& DaysOfWeek(int week);

// Whether the day ends its week: Sunday in week 1 and from week 16 on,
// Saturday in weeks 2 to 15 and in week 19. Week 20 has no last day: its
// Monday moves on to week 21 without the week's end.
bool IsLastDayOfWeek(int week, std::string_view day);

// The day after `day` of `week`, by the table above. Week 4's Saturday leads
// to Thursday of week 5, which the screen turns into week 5's Saturday.
CalendarDay NextDay(int week, std::string_view day);

// The day before, for the screen's Previous Day; Thursday of week 1 has none
// and stays where it is.
CalendarDay PreviousDay(int week, std::string_view day);

// Whether the day is the first of its week (week 5's Thursday counts as its
// Saturday).
bool IsFirstDayOfWeek(int week, std::string_view day);

// The week of the last day step taken before the dynasty stands on
// (week, day); week 1 before the first step. The inbox lists that week's
// messages.
int WeekOfLastStep(int week, std::string_view day);

}  // namespace courtmere
