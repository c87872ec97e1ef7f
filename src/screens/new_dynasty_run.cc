#include "screens/new_dynasty_run.h"

#include "league/new_dynasty.h"
#include "screens/conference_choice.h"
#include "screens/team_choice.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere {

namespace {

bool Drive(Session& session, const NewDynastyRequest& request) {
  if (!BeginNewDynasty(session)) return false;
  ConferenceChoice leagues(session);
  for (const std::string& conference : request.conferences) {
    if (!leagues.Add(conference)) return false;
  }
  if (!leagues.Continue()) return false;
  TeamChoice teams(session);
  if (request.randomPrestige && !teams.Randomize()) return false;
  return teams.Start(request.school, request.coach);
}

}  // namespace

bool RunNewDynasty(Session& session, const NewDynastyRequest& request) {
  if (!session.StoreOpen()) OpenStore(session, 0);
  const Inbox inbox = session.inbox;
  bool built = false;
  {
    Store::Transaction tx(session.Db());
    built = Drive(session, request);
    if (built) tx.Commit();
  }
  if (!built) {
    session.config = LoadConfig(session.Db());
    session.inbox = inbox;
  }
  return built;
}

}  // namespace courtmere
