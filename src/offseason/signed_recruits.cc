#include "offseason/signed_recruits.h"

#include <string>
#include <utility>
#include <vector>

#include "people/player_writer.h"
#include "store/session.h"

namespace courtmere {

void SignedRecruitsToPlayers(Session& session) {
  Store& store = session.Db();
  std::vector<std::pair<int, std::string>> signings;  // id, school
  for (Rows rows = store.Query(
           "SELECT Recruit.Id, Recruit.TeamChoice FROM Team, Recruit WHERE Recruit.TeamChoice = "
           "Team.SchoolName ORDER BY Team.rowid, Recruit.rowid");
       rows.Next();) {
    signings.emplace_back(rows.Int(0), rows.Text(1));
  }
  for (const auto& [id, school] : signings) {
    store.Exec(
        "UPDATE Player SET PlayerYear = CASE PlayerYear WHEN 'Recruit' THEN 'Freshman' ELSE "
        "'Junior' END, Team = ? WHERE Id = ?",
        school, id);
    AddPlayerStats(store, id);
    store.Exec("UPDATE Recruit SET InEligible = 1 WHERE Id = ?", id);
  }
  store.Exec("DELETE FROM RecruitDecision WHERE Id > 0");
  store.Exec("DELETE FROM Recruit WHERE coalesce(InEligible, 0) < 2");
  store.Exec(
      "UPDATE Player SET PlayerYear = 'JC' WHERE PlayerYear = 'Recruit' AND Id IN (SELECT Id FROM "
      "Recruit)");
  store.Exec("DELETE FROM Player WHERE PlayerYear = 'Recruit'");
}

}  // namespace courtmere
