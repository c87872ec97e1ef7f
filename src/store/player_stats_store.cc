#include "store/player_stats_store.h"

namespace courtmere {

PlayerStatsStore::PlayerStatsStore() = default;

int PlayerStatsStore::FindTeam(std::string_view school, int limit) const {
  for (int i = 1; i < limit && i <= kMaxTeams; ++i) {
    if (teams_[i].SchoolName == school) return i;
  }
  return 0;
}

void PlayerStatsStore::Clear() {
  for (auto& team : teams_) team = TeamSeasonLines{};
}

}  // namespace courtmere
