// The two schools of an exhibition: taken from the dynasty when there is
// one, otherwise set up from the seed tables with staff, rosters and depth
// charts, as a new dynasty would set them up.
#pragma once

#include <string>

#include "store/session.h"

namespace courtmere::cli {

struct SchoolPair {
  std::string home;
  std::string away;
};

// Names the two schools (two schools of the first fixed conference when
// `home` and `away` are empty) and makes sure both can play. Refuses one
// school against itself and a school that is neither in the dynasty nor in
// the seed tables.
SchoolPair PrepareExhibition(Session& session, std::string home, std::string away);

}  // namespace courtmere::cli
