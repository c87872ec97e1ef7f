#include "league/tourney_field.h"

#include <algorithm>
#include <optional>

#include "store/store.h"

namespace courtmere {

std::vector<Entrant> PollCandidates(Store& store, int count,
                                    const std::function<bool(const std::string&)>& passOver) {
  std::vector<Entrant> list;
  for (Rows rows = store.Query(
           "SELECT SchoolName, TeamPoints FROM Ranking ORDER BY TeamRanking ASC, rowid");
       rows.Next() && static_cast<int>(list.size()) < count;) {
    std::string school = rows.Text(0);
    if (passOver(school)) continue;
    list.push_back({std::move(school), rows.Double(1), 0, {}, {}});
  }
  return list;
}

double PollPoints(Store& store, const std::string& school) {
  return store.ScalarDouble("SELECT TeamPoints FROM Ranking WHERE SchoolName = ?", school)
      .value_or(0.0);
}

void ScoreAndSort(Store& store, std::vector<Entrant>& entrants) {
  for (Entrant& e : entrants) {
    const std::optional<double> cri =
        store.ScalarDouble("SELECT CRIValue FROM CRIRank WHERE SchoolName = ?", e.school);
    e.score = cri.value_or(0.0) * 100 + e.teamPoints;
  }
  std::stable_sort(entrants.begin(), entrants.end(),
                   [](const Entrant& a, const Entrant& b) { return a.score > b.score; });
}

void ReadHomes(Store& store, std::vector<Entrant>& entrants) {
  for (Entrant& e : entrants) {
    for (const char* sql : {"SELECT Region, Conference FROM Team WHERE SchoolName = ?",
                            "SELECT Region, Conference FROM ScrubTeam WHERE SchoolName = ?"}) {
      Rows rows = store.Query(sql, e.school);
      if (rows.Next()) {
        e.region = rows.Text(0);
        e.conference = rows.Text(1);
        break;
      }
    }
  }
}

}  // namespace courtmere
