// Lines of a text report laid out under a rule of dashes: each value takes
// the width of its run of dashes and the gaps between runs stay as the rule
// has them. A value longer than its column is cut to the column's width, so
// the columns below a rule always line up.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

std::string FixedLine(const std::string& rule, const std::vector<std::string>& values);

}  // namespace courtmere
