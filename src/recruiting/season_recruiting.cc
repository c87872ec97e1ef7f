#include "recruiting/season_recruiting.h"

#include "recruiting/pool_updates.h"
#include "recruiting/recruit_points.h"
#include "recruiting/top_bid.h"
#include "store/session.h"

namespace courtmere {

ComputerTurn& NoComputerTurn() {
  static ComputerTurn none;
  return none;
}

int SeasonRecruiting::PointsLeft(Session& session) {
  return UserPointsAvail(session);
}

void SeasonRecruiting::ComputerRecruiting(Session& session, int week) {
  computer_->Run(session, week, Period(session.config));
}

void SeasonRecruiting::ClearWeekDecisions(Session& session) {
  session.Db().Exec("UPDATE RecruitDecision SET WeekDecision = 'none'");
}

void SeasonRecruiting::ClearWeekBids(Session& session) {
  session.Db().Exec("UPDATE RecruitDecision SET WeekBid = 0");
}

void SeasonRecruiting::EstimateTopBids(Session& session) {
  UpdateTopBids(session);
}

void SeasonRecruiting::SetWeeklyPoints(Session& session) {
  SetUserWeeklyPoints(session, Period(session.config));
}

void SeasonRecruiting::DeclareNBARecruits(Session& session) {
  courtmere::DeclareNBARecruits(session);
}

void SeasonRecruiting::UpdateRecruitStats(Session& session, int update) {
  courtmere::UpdateRecruitStats(session, update);
}

}  // namespace courtmere
