// The user's career as a head coach: his HeadCoach counters and his
// CoachHistory rows, year by year. An empty ACT or NCT record shows "NA".
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

class Store;

inline constexpr std::array<const char*, 11> kCoachHistoryColumns = {
    "Season",  "Year",      "Team",    "Wins",    "Losses",        "Conf Ws",
    "Conf Ls", "ConfChamp", "ACT W/L", "NCT W/L", "Season Summary"};

struct CoachCareer {
  std::string name, team;
  int seasons = 0, wins = 0, losses = 0, confChamps = 0;
  int nctApps = 0, nctWins = 0, nctLosses = 0, nctFinalFours = 0, nctChamps = 0;
  int actApps = 0, actWins = 0, actLosses = 0, actFinalFours = 0, actChamps = 0;
  double prestigeChange = 0;
  // One row per season, in the columns above, oldest first.
  std::vector<std::array<std::string, 11>> history;
};

CoachCareer ReadCoachCareer(Store& store);

}  // namespace courtmere
