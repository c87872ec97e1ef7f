// The ranks of the running season week by week: after each week's poll and
// rating index, every first-division school's place in both is kept, so a
// school's progress can be drawn. The rows go with the season (cleared when
// the next one starts).
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct RankPoint {
  int Week = 0;
  int Poll = 0;  // 0: no poll place
  int Cri = 0;   // 0: no index yet (before week 5's end)
};

// Keeps the ranks standing at the end of `week`, in place of any kept for it.
void RecordRanks(Store& store, int week);

// A school's kept ranks, by week.
std::vector<RankPoint> RankHistoryOf(Store& store, const std::string& school);

}  // namespace courtmere
