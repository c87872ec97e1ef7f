#include "screens/nonconf_schools.h"

#include "league/prestige_bands.h"
#include "store/store.h"

namespace courtmere {

UserPrestige ReadUserPrestige(Store& store, const std::string& team) {
  UserPrestige user;
  user.column = "Prestige";
  Rows rows = store.Query(
      "SELECT Conference, Prestige, InitialPrestige FROM Team WHERE SchoolName = ?", team);
  if (!rows.Next()) return user;
  user.conference = rows.Text(0);
  if (rows.IsNull(1) || rows.Double(1) <= 0) {
    user.column = "InitialPrestige";
    user.prestige = rows.Double(2);
  } else {
    user.prestige = rows.Double(1);
  }
  return user;
}

std::optional<NonConfChoice> LookUpSchool(Store& store, const std::string& school,
                                          std::string_view column) {
  const std::string teamSql =
      "SELECT Conference, " + std::string(column) + " FROM Team WHERE SchoolName = ?";
  for (const std::string& sql :
       {teamSql,
        std::string("SELECT Conference, InitialPrestige FROM ScrubTeam WHERE SchoolName = ?")}) {
    Rows rows = store.Query(sql, school);
    if (rows.Next()) {
      return NonConfChoice{school, rows.Text(0), BandOf(rows.Double(1)).Label};
    }
  }
  return std::nullopt;
}

}  // namespace courtmere
