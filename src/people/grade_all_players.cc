#include "people/grade_all_players.h"

#include <vector>

#include "people/grading.h"
#include "people/player_writer.h"
#include "store/session.h"

namespace courtmere {

void GradeAllPlayers(Session& session) {
  Store& store = session.Db();
  std::vector<int> ids;
  for (Rows rows = store.Query("SELECT Id FROM Player ORDER BY Id"); rows.Next();) {
    ids.push_back(rows.Int(0));
  }
  Store::Transaction tx(store);
  for (int id : ids) {
    Player p;
    if (!LoadPlayer(store, id, p)) continue;
    GradePlayer(session, p);
    store.Exec(
        "UPDATE Player SET AthleticGrade = ?, ScoreGrade = ?, ShootingGrade = ?, "
        "OutsideShootGrade = ?, ReboundGrade = ?, PerrDefenseGrade = ?, PostDefenseGrade = ?, "
        "HandlingGrade = ?, PassingGrade = ?, PotentialGrade = ?, ScoutOverall = ? WHERE Id = ?",
        p.AthleticGrade, p.ScoreGrade, p.ShootingGrade, p.OutsideShootGrade, p.ReboundGrade,
        p.PerrDefenseGrade, p.PostDefenseGrade, p.HandlingGrade, p.PassingGrade, p.PotentialGrade,
        p.ScoutOverall, id);
  }
  tx.Commit();
}

}  // namespace courtmere
