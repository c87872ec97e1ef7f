// The roster screens' data (frmRoster, frmManageRoster): the school's players
// as the user's scouts see them, the depth chart and inactive man as stored,
// the tactics, and the choices each tactic offers. The rules that change a
// roster are in roster_rules.h.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "screens/roster_rules.h"

namespace courtmere {

class Store;

inline constexpr std::array<std::string_view, 3> kTempoChoices = {"Up Beat", "Normal", "Slow Down"};
inline constexpr std::array<std::string_view, 3> kOffenseChoices = {"Outside", "Inside", "Normal"};
inline constexpr std::array<std::string_view, 4> kDefenseChoices = {"Zone", "Man", "Matchup Zone",
                                                                    "Help"};
inline constexpr std::array<std::string_view, 3> kPressChoices = {"Full Court", "Half Court",
                                                                  "None"};

struct RosterRow {
  int Id = 0;
  std::string Name;
  int Position = 0;
  std::string PositionName;
  std::string Year;
  std::string Height;
  std::string Health;
  int Overall = 0;   // ScoutOverall, rounded
  int Redshirt = 0;  // 0 never, 1 this season, 2 used
  bool Inactive = false;
  std::array<std::string, 10> Grades;  // in the order of kGradeLabels
};

// Short headings of the ten grades, in the order RosterRow holds them.
inline constexpr std::array<std::string_view, 10> kGradeLabels = {
    "Ath", "Sco", "Sht", "Out", "Reb", "PD", "PoD", "Han", "Pas", "Pot"};

// The school's players, best scouted overall first.
std::vector<RosterRow> TeamRoster(Store& store, const std::string& school);

// The chart and inactive man stored on the school's row (zeros when none).
DepthChart LoadDepthChart(Store& store, const std::string& school);

// The tactics on the school's row; an empty Press reads "None".
TeamTactics LoadTactics(Store& store, const std::string& school);

}  // namespace courtmere
