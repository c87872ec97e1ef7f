#include "schedule/game_counter.h"

#include "store/session.h"

namespace courtmere {
namespace {

int MaxGameNo(Store& store) {
  return static_cast<int>(
      store.ScalarInt("SELECT MaxGameNo FROM Config WHERE IdConfig = 0").value_or(0));
}

}  // namespace

GameCounter StartSeasonCounter(Store& store) {
  const int last = MaxGameNo(store);
  if (last > 20000 || last <= 0) return GameCounter{1};
  return GameCounter{last + 1};
}

GameCounter ContinueCounter(Store& store) {
  const int last = MaxGameNo(store);
  return GameCounter{last > 0 ? last + 1 : 1};
}

void SaveGameCounter(Session& session, const GameCounter& counter) {
  session.Db().Exec("UPDATE Config SET MaxGameNo = ? WHERE IdConfig = 0", counter.Last());
  session.config.MaxGameNo = counter.Last();
}

}  // namespace courtmere
