#include "league/new_dynasty.h"

#include "league/clear_dynasty.h"
#include "league/league_setup.h"
#include "store/dynasty_seed.h"
#include "store/session.h"
#include "store/store_files.h"
#include "store/upgrade_store.h"

namespace courtmere {

bool BeginNewDynasty(Session& session) {
  if (!session.ui.Ask("Are you sure you want to start a new season? (all data will be erased)")) {
    return false;
  }
  if (!session.StoreOpen()) OpenStore(session, 0);
  session.ui.ShowProgress("Clearing Old Season");
  UpgradeStore(session);
  Store& store = session.Db();
  Store::Transaction tx(store);
  ClearDynasty(store);
  SaveDynastySeed(store, session.givenSeed);
  SetupLeagues(session);
  tx.Commit();
  session.config = LoadConfig(store);
  session.inbox = Inbox{};
  session.ui.HideProgress();
  return true;
}

}  // namespace courtmere
