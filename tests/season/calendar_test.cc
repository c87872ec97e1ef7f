// The season's calendar: every step of the day table, the odd weeks (week 5's
// lone Saturday, week 16 into Tuesday of week 17, week 20 into the season's
// end) and the walk back the day screen takes.
#include "season/calendar.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace courtmere {
namespace {

// The whole season as the day step walks it from Thursday of week 1, with
// week 5's Thursday turned into its Saturday as the screen does.
std::vector<CalendarDay> WalkSeason() {
  std::vector<CalendarDay> days;
  CalendarDay d{1, "Thursday"};
  while (d.week < kSeasonOverWeek) {
    if (d.week == 5 && d.day == "Thursday") d.day = "Saturday";
    days.push_back(d);
    d = NextDay(d.week, d.day);
  }
  days.push_back(d);
  return days;
}

TEST(Calendar, TheSeasonIsTheTableDayByDay) {
  const std::vector<CalendarDay> expected = {
      {1, "Thursday"},  {1, "Friday"},     {1, "Saturday"},   {1, "Sunday"},     {2, "Thursday"},
      {2, "Saturday"},  {3, "Thursday"},   {3, "Saturday"},   {4, "Thursday"},   {4, "Saturday"},
      {5, "Saturday"},  {6, "Thursday"},   {6, "Saturday"},   {7, "Thursday"},   {7, "Saturday"},
      {8, "Thursday"},  {8, "Saturday"},   {9, "Thursday"},   {9, "Saturday"},   {10, "Thursday"},
      {10, "Saturday"}, {11, "Thursday"},  {11, "Saturday"},  {12, "Thursday"},  {12, "Saturday"},
      {13, "Thursday"}, {13, "Saturday"},  {14, "Thursday"},  {14, "Saturday"},  {15, "Thursday"},
      {15, "Saturday"}, {16, "Thursday"},  {16, "Friday"},    {16, "Saturday"},  {16, "Sunday"},
      {17, "Tuesday"},  {17, "Wednesday"}, {17, "Thursday"},  {17, "Friday"},    {17, "Saturday"},
      {17, "Sunday"},   {18, "Monday"},    {18, "Wednesday"}, {18, "Thursday"},  {18, "Friday"},
      {18, "Saturday"}, {18, "Sunday"},    {19, "Monday"},    {19, "Wednesday"}, {19, "Saturday"},
      {20, "Monday"},   {21, "Monday"}};
  EXPECT_EQ(WalkSeason(), expected);
}

// Week 5 is entered on Thursday, which stands for its Saturday; the season's
// end goes nowhere.
TEST(Calendar, WeekFiveIsEnteredOnThursdayAndTheSeasonsEndGoesNowhere) {
  EXPECT_EQ(NextDay(4, "Saturday"), (CalendarDay{5, "Thursday"}));
  EXPECT_EQ(NextDay(5, "Thursday"), (CalendarDay{6, "Thursday"}));
  EXPECT_EQ(NextDay(21, "Monday"), (CalendarDay{21, "Monday"}));
}

TEST(Calendar, LastDaysOfTheWeeks) {
  const std::vector<std::pair<CalendarDay, bool>> cases = {
      {{1, "Sunday"}, true},     {{1, "Saturday"}, false},
      {{5, "Saturday"}, true},   {{16, "Sunday"}, true},
      {{16, "Saturday"}, false}, {{18, "Sunday"}, true},
      {{18, "Saturday"}, false}, {{19, "Saturday"}, true},
      {{20, "Monday"}, false}};  // week 20's Monday moves into week 21 without a week's end
  for (const auto& [d, last] : cases)
    EXPECT_EQ(IsLastDayOfWeek(d.week, d.day), last) << d.week << d.day;
  for (int week = 2; week <= 15; ++week) {
    EXPECT_TRUE(IsLastDayOfWeek(week, "Saturday")) << week;
    EXPECT_FALSE(IsLastDayOfWeek(week, "Thursday")) << week;
  }
}

TEST(Calendar, PreviousDayRetracesTheWalkAndStopsAtTheFirstDay) {
  const std::vector<CalendarDay> days = WalkSeason();
  for (size_t i = days.size() - 1; i > 0; --i) {
    EXPECT_EQ(PreviousDay(days[i].week, days[i].day), days[i - 1]) << days[i].week << days[i].day;
  }
  EXPECT_EQ(PreviousDay(1, "Thursday"), (CalendarDay{1, "Thursday"}));
}

TEST(Calendar, TheInboxWeekIsTheWeekOfTheLastStep) {
  const std::vector<std::pair<CalendarDay, int>> cases = {
      {{1, "Thursday"}, 1}, {{1, "Saturday"}, 1}, {{2, "Thursday"}, 1},  {{2, "Saturday"}, 2},
      {{5, "Thursday"}, 4}, {{6, "Thursday"}, 5}, {{17, "Tuesday"}, 16}, {{21, "Monday"}, 20}};
  for (const auto& [d, week] : cases)
    EXPECT_EQ(WeekOfLastStep(d.week, d.day), week) << d.week << d.day;
}

}  // namespace
}  // namespace courtmere
