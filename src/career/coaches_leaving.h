// The yearly staff development of the user's school: a good assistant may
// leave on his own to become head coach of a background school. At most one
// goes a year; the Athletic Director writes, and the man joins the market as
// "Looking For FA", so the user must hire a replacement before the season.
#pragma once

#include <functional>

namespace courtmere {

struct Session;

// Whether a coach leaves. `drawR` gives R, a whole number from 1 to 10, and is
// called only for a coach rated above 74 in a skill who isn't taken at once
// for being above 80 in both with an ambition above 85.
bool CoachLeaves(int offCoach, int defCoach, int ambition, const std::function<int()>& drawR);

// Runs the test down the user's coaches, best offence first, until one
// leaves. The last but one step of Train Players.
void CoachesLeaving(Session& session);

}  // namespace courtmere
