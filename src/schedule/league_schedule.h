// The season's schedules of the whole league: the preseason tournaments,
// every conference's regular season from its template, and the
// non-conference games on every team's open dates.
//
// Runs on empty schedule tables, when a dynasty is set up and again in each
// offseason, in one transaction. Game numbers start again at 1 when the
// counter is 0 or has passed 20000; Config.MaxGameNo ends at the last number
// used.
#pragma once

namespace courtmere {

struct Session;

// Throws ScheduleError, with nothing written, when a conference's schools do
// not fit its template.
void BuildLeagueSchedules(Session& session);

}  // namespace courtmere
