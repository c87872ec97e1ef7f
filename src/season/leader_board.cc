#include "season/leader_board.h"

#include <algorithm>

#include "store/player_stats_store.h"

namespace courtmere {

LeaderRow MakeLeaderRow(const PlayerSeasonLine& line, double value) {
  return {value,    line.Id,  line.PlayerPosition, line.PPG, line.RPG, line.APG, line.SPG,
          line.BPG, line.TOPG};
}

void SortLeaderBoard(std::vector<LeaderRow>& rows) {
  std::stable_sort(rows.begin(), rows.end(),
                   [](const LeaderRow& a, const LeaderRow& b) { return a.Value > b.Value; });
  if (rows.size() > static_cast<size_t>(kMaxLeaderRows)) rows.resize(kMaxLeaderRows);
}

}  // namespace courtmere
