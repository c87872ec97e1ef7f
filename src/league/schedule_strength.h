// The strength of a team's schedule: the mean TeamRating of its opponents in
// its conference schedule, each game counted once (a double round-robin
// opponent twice). Worked out once a season, when the schedules stand, and
// unchanged by what happens on the floor.
#pragma once

namespace courtmere {

struct Session;

// Writes ScheduleStrength, rounded to one decimal, for every Team row. A
// team without conference games gets 0.
void UpdateScheduleStrength(Session& session);

}  // namespace courtmere
