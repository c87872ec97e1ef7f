// Coach roles of a computer team: one offensive coach, one defensive coach,
// and every other coach recruits.
#include <vector>

#include "cpu/computer_roster.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct CoachRow {
  int id;
  int off;
  int def;
};

// The best and second-best value with its coach's id. On a tie the coach
// read first stays ahead.
struct Ranked {
  int bestId = 0;
  int best = -1;
  int secondId = 0;
  int second = -1;

  void Add(int id, int value) {
    if (value > best) {
      secondId = bestId;
      second = best;
      bestId = id;
      best = value;
    } else if (value > second) {
      secondId = id;
      second = value;
    }
  }
};

}  // namespace

void SetCoachRoles(Session& session, const std::string& school) {
  Store& store = session.Db();
  std::vector<CoachRow> coaches;
  bool hasOffence = false;
  bool hasDefence = false;
  {
    Rows rows = store.Query(
        "SELECT Id, OffCoach, DefCoach, OffPoints, DefPoints FROM Coach WHERE Team = ?", school);
    while (rows.Next()) {
      coaches.push_back({rows.Int(0), rows.Int(1), rows.Int(2)});
      hasOffence = hasOffence || rows.Int(3) == 1;
      hasDefence = hasDefence || rows.Int(4) == 1;
    }
  }
  if ((hasOffence && hasDefence) || coaches.empty()) return;

  Ranked off;
  Ranked def;
  for (const CoachRow& c : coaches) {
    off.Add(c.id, c.off);
    def.Add(c.id, c.def);
    // Every coach recruits unless he is given a game role below.
    // Design decision: a role left from before is cleared as well. The roles
    // are drawn again only when one of them has no holder (its coach left);
    // the other's holder may not be the coach chosen now, and a staff must
    // have one holder of each role: the game reads the first holder it
    // finds, the staff screens want exactly one.
    store.Exec("UPDATE Coach SET RecPoints = 2, OffPoints = 0, DefPoints = 0 WHERE Id = ?", c.id);
  }
  int offId = off.bestId;
  int defId = def.bestId;
  // One coach best at both takes the role where he leads by more; a lone
  // coach holds both.
  if (offId == defId && coaches.size() > 1) {
    if (off.best - off.second < def.best - def.second) {
      offId = off.secondId;
    } else {
      defId = def.secondId;
    }
  }
  store.Exec("UPDATE Coach SET OffPoints = 1, RecPoints = 1 WHERE Id = ?", offId);
  store.Exec("UPDATE Coach SET DefPoints = 1, RecPoints = 1 WHERE Id = ?", defId);
}

}  // namespace courtmere
