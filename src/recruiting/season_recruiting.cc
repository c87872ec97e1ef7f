#include "recruiting/season_recruiting.h"

#include "recruiting/pool_updates.h"
#include "recruiting/recruit_points.h"
#include "recruiting/scout_letters.h"
#include "recruiting/signing.h"
#include "recruiting/target_lists.h"
#include "recruiting/test_scores.h"
#include "recruiting/top_bid.h"
#include "recruiting/week_plan.h"
#include "store/session.h"

namespace courtmere {

int SeasonRecruiting::PointsLeft(Session& session) {
  return UserPointsAvail(session);
}

void SeasonRecruiting::ComputerRecruiting(Session& session, int week, bool autoSim) {
  const bool userToo = autoSim || userAsComputer_;
  if (week == 1) {
    BuildRecruitLists(session, userToo);
  } else if (week >= 2 && week <= 12) {
    RunCPURecruiting(session, week, Period(session.config), userToo);
  }
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

void SeasonRecruiting::ScoutRecruitReport(Session& session, int recruit) {
  courtmere::ScoutRecruitReport(session, recruit);
}

void SeasonRecruiting::RecruitInterestReport(Session& session) {
  courtmere::RecruitInterestReport(session);
}

void SeasonRecruiting::UpdateRecruitStats(Session& session, int update) {
  courtmere::UpdateRecruitStats(session, update);
}

void SeasonRecruiting::FindBackupRecruit(Session& session) {
  courtmere::FindBackupRecruit(session);
}

void SeasonRecruiting::RecruitTestScores(Session& session, int report) {
  // The list itself is read by the screens (RecruitTestScores in
  // test_scores.h); the season's step gives the test.
  if (report == 1) GiveRecruitTest(session);
}

void SeasonRecruiting::SignRecruits(Session& session) {
  SignAllRecruits(session);
}

}  // namespace courtmere
