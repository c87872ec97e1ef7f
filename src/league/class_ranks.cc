#include "league/class_ranks.h"

#include <string>
#include <vector>

#include "people/recruit_pool.h"
#include "store/session.h"

namespace courtmere {

void RankRecruitClasses(Session& session) {
  Store& store = session.Db();
  store.Exec("UPDATE Team SET ClassRank = 0 WHERE ClassRank > 0");
  std::vector<std::string> schools;
  for (Rows r = store.Query("SELECT SchoolName FROM Team WHERE SchoolName IS NOT NULL ORDER BY "
                            "rowid");
       r.Next();) {
    schools.push_back(r.Text(0));
  }
  for (const std::string& school : schools) {
    double sum = 0;
    int freshmen = 0;
    for (Rows r = store.Query(
             "SELECT Overall, Potential FROM Player WHERE Team = ? AND PlayerYear = 'Freshman' "
             "AND Redshirt <> 2 ORDER BY Id",
             school);
         r.Next(); ++freshmen) {
      sum += DrawRankPoints(session.rng, r.Double(0), r.Int(1));
    }
    store.Exec("UPDATE Team SET ClassPoints = ? WHERE SchoolName = ?", sum / (freshmen + 1),
               school);
  }
  // Design decision: classes level on points keep the table's order.
  int rank = 0;
  std::vector<std::string> best;
  for (Rows r = store.Query(
           "SELECT SchoolName FROM Team WHERE SchoolName IS NOT NULL ORDER BY ClassPoints DESC, "
           "rowid LIMIT 10");
       r.Next();) {
    best.push_back(r.Text(0));
  }
  for (const std::string& school : best) {
    store.Exec("UPDATE Team SET ClassRank = ? WHERE SchoolName = ?", ++rank, school);
  }
}

}  // namespace courtmere
