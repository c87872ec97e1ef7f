// A player's season and career figures as the screens show them. During a
// season the session's figures in memory are the truth (the PlayerStats table
// catches up only at a save); a team that isn't in memory is read from the
// table.
#pragma once

#include <optional>
#include <string>

namespace courtmere {

class Store;
struct Session;

struct StatLine {
  int Games = 0;
  int Minutes = 0;
  int Points = 0;
  int Rebounds = 0;
  int Assists = 0;
  double MPG = 0;
  double PPG = 0;
  double RPG = 0;
  double APG = 0;
  double SPG = 0;
  double BPG = 0;
  double TOPG = 0;
  double FGPercent = 0;
  double ThreePercent = 0;
  double FTPercent = 0;
  int PlusMinus = 0;
};

// The player's figures this season; nothing when he has none.
std::optional<StatLine> SeasonLine(Session& session, int playerId, const std::string& team);

// His career figures before this season; nothing when he has none.
std::optional<StatLine> CareerLine(Store& store, int playerId);

}  // namespace courtmere
