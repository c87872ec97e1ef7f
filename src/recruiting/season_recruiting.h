// Recruiting as the season's day step runs it: the user's weekly budget,
// the resets of the week's decisions and bids, the scouts' estimates of the
// rival bids and their letters, the pool's updates, the computer teams'
// lists and weekly plans, the academic test, signing day, and the
// recruiting period the running game holds.
#pragma once

#include "recruiting/recruiting_period.h"
#include "season/recruiting_week.h"

namespace courtmere {

struct Config;

class SeasonRecruiting : public RecruitingWeek {
 public:
  // The period in force now: the one the running game has set, or the
  // calendar's after a load.
  RecruitingPeriod Period(const Config& config) const { return clock_.Current(config); }

  // A headless dynasty that plays for years has no user to recruit: his
  // school then recruits as a computer team all season, as under the
  // auto-sim.
  void SetUserRecruitsAsComputer(bool on) { userAsComputer_ = on; }

  bool Active() const override { return true; }

  void WeekEnded(Session&, int week) override { clock_.WeekEnded(week); }
  int PointsLeft(Session& session) override;
  void ComputerRecruiting(Session& session, int week, bool autoSim) override;
  void ClearWeekDecisions(Session& session) override;
  void ClearWeekBids(Session& session) override;
  void EstimateTopBids(Session& session) override;
  void SetWeeklyPoints(Session& session) override;
  void DeclareNBARecruits(Session& session) override;
  void ScoutRecruitReport(Session& session, int recruit) override;
  void RecruitInterestReport(Session& session) override;
  void UpdateRecruitStats(Session& session, int update) override;
  void FindBackupRecruit(Session& session) override;
  void RecruitTestScores(Session& session, int report) override;
  void SignRecruits(Session& session) override;

 private:
  PeriodClock clock_;
  bool userAsComputer_ = false;
};

}  // namespace courtmere
