// What the end of a week brings, in the order the day step runs it: the
// healing, the player of the week and the rankings (the poll, and the rating
// index from week 5), the week's own events (marks, background statistics,
// the turn of the year in week 6, the postseason's set-up in week 15, the
// recruiting events) and the computer's recruiting. The Sunday of week 16
// ranks the teams and selects the national tournaments instead. Week 5,
// which has no games, has its own short step.
#pragma once

#include <string>

namespace courtmere {

struct SeasonRun;

// The caption the end of `week` gives the main window, or "" when it leaves
// it as it is.
std::string WeekEndCaption(int week);

// Steps 10 to 13 of a day that ends its week.
void EndWeek(SeasonRun& run, int week, const std::string& day);

// The step of week 5's Saturday: healing, computer recruiting, the rating
// index and the Contact period.
void WeekFiveEvents(SeasonRun& run);

}  // namespace courtmere
