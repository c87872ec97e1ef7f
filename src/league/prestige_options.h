// The two prestige options of the team choice. Randomize rotates the
// InitialPrestige column over the schools in the order of their names (the
// same set of values, each moved on by the same number of schools); Default
// puts back each school's seed prestige.
#pragma once

namespace courtmere {

struct Session;

void RandomizePrestige(Session& session);
void DefaultPrestige(Session& session);

}  // namespace courtmere
