#include "season/calendar.h"

#include <algorithm>

namespace courtmere {

namespace {

using Days = std::vector<std::string>;

const Days kOpeningWeek = {"Thursday", "Friday", "Saturday", "Sunday"};
const Days kRegularWeek = {"Thursday", "Saturday"};
const Days kWeekFive = {"Saturday"};
const Days kWeekSeventeen = {"Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
const Days kWeekEighteen = {"Monday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
const Days kWeekNineteen = {"Monday", "Wednesday", "Saturday"};
const Days kMondayOnly = {"Monday"};
const Days kNoDays = {};

// Week 5 is entered on its Thursday, which stands for its one Saturday.
std::string_view Settled(int week, std::string_view day) {
  return week == 5 && day == "Thursday" ? std::string_view("Saturday") : day;
}

// The position of the day in its week, or -1.
int IndexOf(int week, std::string_view day) {
  const Days& days = DaysOfWeek(week);
  const auto it = std::find(days.begin(), days.end(), Settled(week, day));
  return it == days.end() ? -1 : static_cast<int>(it - days.begin());
}

CalendarDay FirstDayOf(int week) {
  if (week == 5) return {5, "Thursday"};
  return {week, DaysOfWeek(week).front()};
}

}  // namespace

const Days& DaysOfWeek(int week) {
  if (week == 1 || week == 16) return kOpeningWeek;
  if (week == 5) return kWeekFive;
  if (week >= 2 && week <= 15) return kRegularWeek;
  if (week == 17) return kWeekSeventeen;
  if (week == 18) return kWeekEighteen;
  if (week == 19) return kWeekNineteen;
  if (week == 20 || week == kSeasonOverWeek) return kMondayOnly;
  return kNoDays;
}

bool IsLastDayOfWeek(int week, std::string_view day) {
  if (week == 1 || (week > 15 && week != 19)) return day == "Sunday";
  if (week >= 2 && week <= 15) return day == "Saturday";
  return week == 19 && day == "Saturday";
}

CalendarDay NextDay(int week, std::string_view day) {
  const int index = IndexOf(week, day);
  if (index < 0 || week >= kSeasonOverWeek) return {week, std::string(day)};
  const Days& days = DaysOfWeek(week);
  if (index + 1 < static_cast<int>(days.size())) return {week, days[index + 1]};
  return FirstDayOf(week + 1);
}

CalendarDay PreviousDay(int week, std::string_view day) {
  const int index = IndexOf(week, day);
  if (index < 0 || (week == 1 && index == 0)) return {week, std::string(day)};
  if (index > 0) return {week, DaysOfWeek(week)[index - 1]};
  return {week - 1, DaysOfWeek(week - 1).back()};
}

bool IsFirstDayOfWeek(int week, std::string_view day) {
  return IndexOf(week, day) == 0;
}

int WeekOfLastStep(int week, std::string_view day) {
  if (week <= 1) return 1;
  return IsFirstDayOfWeek(week, day) ? week - 1 : week;
}

}  // namespace courtmere
