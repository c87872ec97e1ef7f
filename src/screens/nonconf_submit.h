// Writing the user's choices of the non-conference screen.
//
// For each game whose chosen school differs from the present opponent, the
// chosen school comes into the user's row, and the displaced opponent takes
// the chosen school's place in its own game of that day, so nobody plays
// twice in a day and nobody loses a game; that game goes instead when its
// other side is of the displaced opponent's conference, or when both would be
// background teams.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/nonconf_screen.h"

namespace courtmere {

struct Session;

inline constexpr std::string_view kSameTeamTwice =
    "You cannot schedule the same team for more than one non-conference game. Please select "
    "again.";
inline constexpr std::string_view kSelectEveryGame =
    "Please Select a team for each game before hitting Submit.";
inline constexpr std::string_view kChangesSaved = "Your changes have been saved";

// `choices[i]` is the school chosen for `screen.Rows[i]` (ignored for a game
// not offered for change; empty when nothing is chosen). Asks first; a No,
// a school chosen twice or a game without a choice changes nothing and
// returns false.
bool SubmitGames(Session& session, const NonConfScreen& screen,
                 const std::vector<std::string>& choices);

}  // namespace courtmere
