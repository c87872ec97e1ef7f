#include "screens/injuries.h"

#include "people/player.h"
#include "store/store.h"

namespace courtmere {

std::vector<InjuryRow> Injuries(Store& store, const std::string& conference) {
  std::vector<InjuryRow> out;
  for (Rows r = store.Query(
           "SELECT Player.Id, Player.Name, Player.Team, Player.PlayerPosition, Player.Health, "
           "Player.TimeInjured FROM Player JOIN Team ON Team.SchoolName = Player.Team "
           "WHERE Player.Health <> 'Good' AND (?1 = '' OR Team.Conference = ?1) "
           "ORDER BY Player.Team, Player.Name",
           conference);
       r.Next();) {
    out.push_back({r.Int(0), r.Text(1), r.Text(2), PositionName(r.Int(3)), r.Text(4), r.Int(5)});
  }
  return out;
}

}  // namespace courtmere
