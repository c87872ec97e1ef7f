#include "league/head_coach.h"

#include "store/store.h"

namespace courtmere {

void AddHeadCoach(Store& store, const std::string& name, const std::string& school,
                  int expectations) {
  store.Exec("INSERT INTO HeadCoach (Name, Team, Expectations) VALUES (?, ?, ?)", name, school,
             expectations);
}

std::string HumanSchool(Store& store) {
  std::string team =
      store.ScalarText("SELECT Team FROM HeadCoach ORDER BY rowid LIMIT 1").value_or("");
  // "Fired-<school>": the school starts at the seventh character.
  if (team.rfind("Fired", 0) == 0) team = team.size() > 6 ? team.substr(6) : std::string();
  return team;
}

std::string HumanConference(Store& store) {
  return store.ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", HumanSchool(store))
      .value_or("");
}

}  // namespace courtmere
