// The ten best coaches of the year. Every school gets a score at the end of
// the season from how its prestige moved and what it won; the best ten
// schools' coaches hold Ranking.CoachRank 1 to 10 until the next season's
// first poll rebuilds Ranking.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct CoachScore {
  std::string school;
  double score = 0;
};

// The season's marks of a school that score, and its all-time NCT wins
// with this year's added.
struct ScoreMarks {
  double prestigeGain = 0;  // Prestige - InitialPrestige
  int winner = 0;           // 1 conference, 2 NCT, 3 both
  bool nctFinalFour = false;
  bool actWinner = false;
  int nctWinsThisYear = 0;
  int nctWinsAllTime = 0;
};

double CoachScoreOf(const ScoreMarks& marks);

// Sorts the first 60 scores of `scores` (in Team table order), highest
// first with the earlier of equal scores in front, and writes CoachRank 1
// to 10 to the first ten; every other school's rank is cleared.
void WriteCoachRanks(Store& store, const std::vector<CoachScore>& scores);

struct TopCoachRow {
  std::string coach;  // the user's name, or "<school> Head Coach"
  std::string team;
  std::string record;  // "24-8"
  std::string result;  // the school's NCT line, or "Finished close to .500"
};

// The "Top 10 Coaches" list, by CoachRank.
std::vector<TopCoachRow> TopCoaches(Store& store);

}  // namespace courtmere
