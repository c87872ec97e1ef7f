// How far a school went in the year's national tournaments, read from the
// bracket tables the postseason left: its NCT seed row and the rows of the
// slots it won its way into, or, without an NCT seed, the same of the ACT.
#pragma once

#include <string>

namespace courtmere {

class Store;

struct TourneyResult {
  enum Kind { kNone, kNct, kAct };
  Kind kind = kNone;
  int wins = 0;
  bool champion = false;
  std::string record;   // "2-1", "6-0"; empty outside the tournament
  std::string summary;  // "Made the NCT Sweet 16"...; empty outside
};

// The line of an NCT team with `wins` wins: "Made the NCT" up to "Was NCT
// Champion" at six.
std::string NctSummary(int wins);

// The school's tournament of the year. `conference` is its conference: a
// bracket row grouped under that name is no tournament row. The champions
// are known by the year's marks on the school (Winner of 2 or 3, ACTWinner).
struct TourneyMarks {
  bool nctChampion = false;
  bool actChampion = false;
};
TourneyResult ReadTourneyResult(Store& store, const std::string& school,
                                const std::string& conference, TourneyMarks marks);

}  // namespace courtmere
