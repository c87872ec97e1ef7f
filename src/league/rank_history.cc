#include "league/rank_history.h"

#include "store/store.h"

namespace courtmere {

void RecordRanks(Store& store, int week) {
  store.Exec("DELETE FROM RankHistory WHERE Week = ?", week);
  store.Exec(
      "INSERT INTO RankHistory (Week, SchoolName, PollRank, CRIRank) "
      "SELECT ?, t.SchoolName, "
      "coalesce((SELECT min(TeamRanking) FROM Ranking r WHERE r.SchoolName = t.SchoolName), 0), "
      "coalesce((SELECT min(CRIRank) FROM CRIRank c WHERE c.SchoolName = t.SchoolName), 0) "
      "FROM Team t ORDER BY t.rowid",
      week);
}

std::vector<RankPoint> RankHistoryOf(Store& store, const std::string& school) {
  std::vector<RankPoint> points;
  for (Rows r = store.Query(
           "SELECT Week, PollRank, CRIRank FROM RankHistory WHERE SchoolName = ? ORDER BY Week",
           school);
       r.Next();) {
    points.push_back({r.Int(0), r.Int(1), r.Int(2)});
  }
  return points;
}

}  // namespace courtmere
