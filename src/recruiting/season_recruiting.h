// Recruiting as the season's day step runs it: the user's weekly budget,
// the resets of the week's decisions and bids, the scouts' estimates of the
// rival bids, the pool's updates, and the recruiting period the running game
// holds. The computer teams' turn is a seam of its own (ComputerTurn).
#pragma once

#include "recruiting/computer_turn.h"
#include "recruiting/recruiting_period.h"
#include "season/recruiting_week.h"

namespace courtmere {

struct Config;

class SeasonRecruiting : public RecruitingWeek {
 public:
  explicit SeasonRecruiting(ComputerTurn& computer = NoComputerTurn()) : computer_(&computer) {}

  // The period in force now: the one the running game has set, or the
  // calendar's after a load.
  RecruitingPeriod Period(const Config& config) const { return clock_.Current(config); }

  bool Active() const override { return true; }
  bool ComputerActive() const override { return computer_->Active(); }
  bool SigningActive() const override { return false; }

  void WeekEnded(Session&, int week) override { clock_.WeekEnded(week); }
  int PointsLeft(Session& session) override;
  void ComputerRecruiting(Session& session, int week) override;
  void ClearWeekDecisions(Session& session) override;
  void ClearWeekBids(Session& session) override;
  void EstimateTopBids(Session& session) override;
  void SetWeeklyPoints(Session& session) override;
  void DeclareNBARecruits(Session& session) override;
  void UpdateRecruitStats(Session& session, int update) override;

 private:
  PeriodClock clock_;
  ComputerTurn* computer_;
};

}  // namespace courtmere
