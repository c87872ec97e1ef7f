#include "league/prestige_options.h"

#include <string>
#include <vector>

#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

void RandomizePrestige(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  session.rng.Reseed();
  std::vector<std::string> schools;
  std::vector<int64_t> prestige;
  for (Rows rows = store.Query("SELECT SchoolName, InitialPrestige FROM Team ORDER BY SchoolName");
       rows.Next();) {
    schools.push_back(rows.Text(0));
    prestige.push_back(rows.Int64(1));
  }
  const int n = static_cast<int>(schools.size());
  if (n == 0) return;
  // Design decision: a move past the last school carries on from the first,
  // like the writing itself.
  const int r = session.rng.R(n, 1) % n;
  for (int i = 0; i < n; ++i) {
    store.Exec("UPDATE Team SET InitialPrestige = ? WHERE SchoolName = ?", prestige[i],
               schools[(r + i) % n]);
  }
  tx.Commit();
}

void DefaultPrestige(Session& session) {
  session.Db().Exec(
      "UPDATE Team SET InitialPrestige = COALESCE("
      "(SELECT Prestige FROM TeamSetup WHERE TeamSetup.SchoolName = Team.SchoolName), "
      "(SELECT Prestige FROM LowLeagueSetup WHERE LowLeagueSetup.SchoolName = Team.SchoolName), "
      "InitialPrestige)");
}

}  // namespace courtmere
