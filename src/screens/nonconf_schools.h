// How the non-conference screens read schools: the user's prestige and the
// Team column it comes from, and any school's conference and prestige word.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screens/nonconf_screen.h"

namespace courtmere {

class Store;

struct UserPrestige {
  std::string conference;
  double prestige = 0;
  // "Prestige", or "InitialPrestige" when the school's Prestige is not usable
  // (NULL or 0: not worked out yet).
  std::string_view column;
};

UserPrestige ReadUserPrestige(Store& store, const std::string& team);

// A first-division school with its prestige read from `column`, or a
// background team with its InitialPrestige; none for an unknown name.
std::optional<NonConfChoice> LookUpSchool(Store& store, const std::string& school,
                                          std::string_view column);

}  // namespace courtmere
