// The history steps End Season runs, inside its transaction: careers and
// year lines, the schools' and the coach's history with the coach ranks, and
// the record books.
#pragma once

#include "season/season_history.h"

namespace courtmere {

class DynastyHistory : public SeasonHistory {
 public:
  bool Active() const override { return true; }
  void SaveCareerStats(Session& session) override;
  void SaveTeamHistory(Session& session) override;
  void UpdateRecords(Session& session) override;
};

}  // namespace courtmere
