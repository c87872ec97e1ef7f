#include "screens/suspensions.h"

#include "store/store.h"

namespace courtmere {

std::vector<SuspensionRow> ShowSuspensions(Store& store, const std::string& conference) {
  std::vector<SuspensionRow> rows;
  for (Rows r = store.Query(
           "SELECT Player.Id, Player.Name, Player.Team, Player.GPA, Player.PlayerYear "
           "FROM Player JOIN Team ON Team.SchoolName = Player.Team "
           "WHERE Player.Suspended = 1 AND Team.Conference = ? ORDER BY Player.Team, Player.Name",
           conference);
       r.Next();) {
    rows.push_back({r.Int(0), r.Text(1), r.Text(2), r.Double(3), r.Text(4)});
  }
  return rows;
}

}  // namespace courtmere
