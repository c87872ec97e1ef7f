// A school's prestige as the screens show it: a word for its band.
#pragma once

#include <string_view>

namespace courtmere {

// "Elite" above 74, "High" above 64, "Above Average" above 59, "Average"
// above 49, "Below Average" above 39, "Low" above 29, else "Very Low".
std::string_view PrestigeWord(double prestige);

}  // namespace courtmere
