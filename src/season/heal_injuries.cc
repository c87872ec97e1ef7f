#include "season/heal_injuries.h"

#include <string>
#include <vector>

#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct InjuredPlayer {
  int timeInjured;
  std::string team;
  int id;
};

std::vector<InjuredPlayer> InjuredPlayers(Store& store) {
  std::vector<InjuredPlayer> injured;
  for (Rows rows = store.Query("SELECT TimeInjured, Team, Id FROM Player WHERE Health <> 'Good' "
                               "ORDER BY rowid");
       rows.Next();) {
    injured.push_back({rows.Int(0), rows.Text(1), rows.Int(2)});
  }
  return injured;
}

// Design decision: a team without a trainer heals as one whose trainer has
// no ability at all, so its men still recover, only more slowly.
int TrainerAbility(Store& store, const std::string& team) {
  return static_cast<int>(
      store.ScalarInt("SELECT Ability FROM Trainer WHERE Team = ?", team).value_or(0));
}

}  // namespace

int HealingThreshold(int trainerAbility) {
  if (trainerAbility > 85) return 2;
  return CInt((90 - trainerAbility) / 2.0);
}

void HealInjuries(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  for (const InjuredPlayer& p : InjuredPlayers(store)) {
    const int r = Int(session.rng.Rnd() * 100 + 1);
    const int weekCounts = r > HealingThreshold(TrainerAbility(store, p.team)) ? 1 : 0;
    const int left = p.timeInjured - weekCounts;
    if (left > 0) {
      store.Exec("UPDATE Player SET TimeInjured = ? WHERE Id = ?", left, p.id);
    } else {
      store.Exec("UPDATE Player SET Health = 'Good', TimeInjured = 0 WHERE Id = ?", p.id);
    }
  }
  tx.Commit();
}

}  // namespace courtmere
