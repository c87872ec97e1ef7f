#include "season/season_session.h"

#include "season/calendar.h"
#include "store/menu_gate.h"
#include "store/season_stats.h"
#include "store/session.h"

namespace courtmere {

void ResumeSeason(Session& session) {
  MenuGate(session);
  session.config = LoadConfig(session.Db());
  LoadSeasonStats(session);
  LoadInbox(session, WeekOfLastStep(session.config.CurrWeek, session.config.CurrDay));
}

}  // namespace courtmere
