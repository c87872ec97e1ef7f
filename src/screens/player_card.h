// The player card's data (frmPlayerCard): who he is, what his school's scout
// makes of him, and his figures. The card shows the scout's grades and
// overall, never the true ratings.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/stat_lines.h"

namespace courtmere {

struct Session;

struct PlayerCard {
  int Id = 0;
  std::string Name;
  std::string Team;
  std::string Year;
  std::string Position;
  std::string Height;
  std::string HomeTown;
  std::string HighSchool;
  std::string Health;  // "Good", or the injury and the weeks he is out
  std::string Status;  // redshirt, suspension and inactive marks, joined by ", "
  double GPA = 0;
  int ScoutOverall = 0;
  std::vector<std::pair<std::string, std::string>> Grades;  // label, letter
  std::optional<StatLine> Season;
  std::optional<StatLine> Career;
};

// Nothing when there is no Player row with this Id.
std::optional<PlayerCard> LoadPlayerCard(Session& session, int playerId);

}  // namespace courtmere
