// The team information screen's data (frmTeamInfo): a school's profile, its
// staff and its record, as label and value lines.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct InfoLine {
  std::string Label;
  std::string Value;
};

// Nothing when the school is not a Team of the dynasty.
std::vector<InfoLine> TeamInfo(Store& store, const std::string& school);

}  // namespace courtmere
