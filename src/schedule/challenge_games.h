// The conference challenges, added when a season starts: for each League row
// with a Challenge, its schools meet those of the conference with that Id on
// the row's Week and Day, school for school in one order drawn for both, as
// non-conference games. The home side alternates, the challenging
// conference's school away in the first game.
#pragma once

namespace courtmere {

struct Session;

void BuildChallengeGames(Session& session);

}  // namespace courtmere
