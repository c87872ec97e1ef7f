#include "recruiting/pool_updates.h"

#include <vector>

#include "people/player.h"
#include "people/player_writer.h"
#include "people/recruit_report.h"
#include "store/session.h"

namespace courtmere {

void UpdateRecruitStats(Session& session, int report) {
  Store& store = session.Db();
  std::vector<int> ids;
  for (Rows r =
           store.Query("SELECT Recruit.Id FROM Recruit, Player WHERE Recruit.Id = Player.Id AND "
                       "PlayerYear = 'Recruit' ORDER BY Recruit.Id");
       r.Next();) {
    ids.push_back(r.Int(0));
  }
  for (const int id : ids) {
    Player player;
    if (!LoadPlayer(store, id, player)) continue;
    Recruit fresh;
    RecruitStats(session.rng, player, fresh);
    const std::string text = RecruitReport(session.rng, player, report);
    store.Exec(
        "UPDATE Recruit SET PPG = ?, APG = ?, RPG = ?, SPG = ?, TOs = ?, ScoutingReport = "
        "coalesce(ScoutingReport, '') || ' ' || ? WHERE Id = ?",
        fresh.PPG, fresh.APG, fresh.RPG, fresh.SPG, fresh.TOs, text, id);
  }
}

bool GoesToDraft(const std::string& recruitType, double gpa, int overall, int roll) {
  if (recruitType != "Exc") return false;
  if (gpa < 2) return overall > 67 && roll < 70;
  return overall > 71 && roll < 40;
}

void DeclareNBARecruits(Session& session) {
  Store& store = session.Db();
  std::vector<int> going;
  for (Rows r = store.Query(
           "SELECT Recruit.Id, RecruitType, Recruit.GPA, Overall FROM Recruit, Player WHERE "
           "Recruit.Id = Player.Id AND InEligible = 0 ORDER BY RankPoints DESC, Recruit.Id");
       r.Next();) {
    const int roll = session.rng.IntRnd(100, 1);
    if (GoesToDraft(std::string(r.Text(1)), r.Double(2), r.Int(3), roll)) going.push_back(r.Int(0));
  }
  for (const int id : going) {
    store.Exec("UPDATE Player SET NBAFlag = 1 WHERE Id = ?", id);
    store.Exec("UPDATE Recruit SET InEligible = 1, TeamChoice = 'NBA' WHERE Id = ?", id);
  }
}

}  // namespace courtmere
