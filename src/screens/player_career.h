// A player's card with his career: who he is, his lines year by year (the
// season's averages and the ratings he ended it with) and his career totals
// and averages.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace courtmere {

class Store;

struct CareerYear {
  int year = 0;
  double ppg = 0, rpg = 0, apg = 0, spg = 0, bpg = 0, topg = 0, mpg = 0;
  double plusMinus = 0, fgPercent = 0, threePercent = 0, ftPercent = 0;
  double overall = 0;
  int jumpshot = 0, inScoring = 0, handling = 0, passing = 0, perrDefense = 0;
};

struct CareerTotals {
  int games = 0, minutes = 0, points = 0, rebounds = 0, assists = 0, steals = 0, blocks = 0;
  int turnovers = 0, shots = 0, shotsMade = 0, threes = 0, threesMade = 0, freeThrows = 0;
  int ftMade = 0;
  double ppg = 0, rpg = 0, apg = 0, fgPercent = 0, threePercent = 0, ftPercent = 0;
};

struct PlayerCareer {
  int id = 0;
  std::string name, team, year, position, height;
  double overall = 0;
  std::vector<CareerYear> years;       // oldest first
  std::optional<CareerTotals> career;  // none before his first season ends
};

// Nothing when no player has the Id.
std::optional<PlayerCareer> ReadPlayerCareer(Store& store, int id);

}  // namespace courtmere
