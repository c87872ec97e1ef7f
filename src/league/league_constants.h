// Sizes the league's rules share.
#pragma once

namespace courtmere {

// The players of a full roster.
inline constexpr int kRosterSize = 13;
// The most scholarships a school may offer in a year.
inline constexpr int kMostScholarships = 5;

}  // namespace courtmere
