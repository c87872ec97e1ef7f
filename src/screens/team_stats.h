// The team statistics screen's data (frmTeamStats): each player's season
// figures and the team's figures beside its opponents'.
#pragma once

#include <string>
#include <vector>

#include "screens/stat_lines.h"

namespace courtmere {

class Store;
struct Session;

struct PlayerStatRow {
  int Id = 0;
  std::string Name;
  std::string Position;
  std::string Year;
  StatLine Line;  // zeros for a player without figures
};

// The school's players in Id order.
std::vector<PlayerStatRow> TeamPlayerStats(Session& session, const std::string& school);

struct TeamStatRow {
  std::string Label;
  std::string Team;
  std::string Opponents;
};

// The school's TeamStats row set against its opponents'; nothing without one.
std::vector<TeamStatRow> TeamTotals(Store& store, const std::string& school);

}  // namespace courtmere
