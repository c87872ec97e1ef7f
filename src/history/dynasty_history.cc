#include "history/dynasty_history.h"

#include "history/career_stats.h"
#include "history/record_update.h"
#include "history/team_history.h"
#include "league/head_coach.h"
#include "store/session.h"

namespace courtmere {

void DynastyHistory::SaveCareerStats(Session& session) {
  courtmere::SaveCareerStats(session.Db(), session.config.CurrYear);
}

void DynastyHistory::SaveTeamHistory(Session& session) {
  courtmere::SaveTeamHistory(session.Db(), HumanSchool(session.Db()), session.config.CurrYear);
}

void DynastyHistory::UpdateRecords(Session& session) {
  courtmere::UpdateRecords(session.Db(), session.config.CurrYear);
}

}  // namespace courtmere
