#include "schedule/league_schedule.h"

#include "schedule/conference_schedule.h"
#include "schedule/game_counter.h"
#include "schedule/league_rows.h"
#include "schedule/nonconf_fill.h"
#include "schedule/open_dates.h"
#include "schedule/preseason_tournaments.h"
#include "store/session.h"

namespace courtmere {

void BuildLeagueSchedules(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  const std::vector<LeagueRow> leagues = ReadLeagues(store);
  GameCounter counter = StartSeasonCounter(store);
  session.rng.Reseed();
  BuildPreseasonTournaments(store, counter);
  OpenDates openDates;
  for (const LeagueRow& league : leagues) {
    BuildConferenceSchedule(store, session.rng, league, counter, openDates);
  }
  FillNonConference(store, session.rng, counter, openDates);
  SaveGameCounter(session, counter);
  tx.Commit();
}

}  // namespace courtmere
