#include "offseason/background_development.h"

#include <string>

#include "offseason/develop_player.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kSkills =
    "Jumpshot, InScoring, Range, ThreePoint, FreeThrow, PerrDefense, PostDefense, DefReb, OffReb, "
    "ShotBlock, Steal, OffRebounding, DefRebounding, Handling, OffAware, DefAware, Passing, "
    "Jumping, Quickness, Endurance, Strength, Reach";

bool LoadScrubPlayer(Store& store, int id, Player& p) {
  Rows rows = store.Query(std::string("SELECT Id, Team, PlayerPosition, PlayerYear, Intelligence, "
                                      "Potential, Overall, ") +
                              kSkills + " FROM ScrubPlayer WHERE Id = ?",
                          id);
  if (!rows.Next()) return false;
  p.Id = rows.Int(0);
  p.Team = rows.Text(1);
  p.PlayerPosition = rows.Int(2);
  p.PlayerYear = rows.Text(3);
  p.Intelligence = rows.Int(4);
  p.Potential = rows.Int(5);
  p.Overall = rows.Double(6);
  for (size_t i = 0; i < kSkillColumns.size(); ++i) {
    p.*kSkillColumns[i].field = rows.Int(static_cast<int>(7 + i));
  }
  return true;
}

void SaveScrubPlayer(Store& store, const Player& p) {
  static const std::string sql = [] {
    std::string s = "UPDATE ScrubPlayer SET PlayerYear = ?, Intelligence = ?, Overall = ?";
    for (const SkillColumn& skill : kSkillColumns) s += std::string(", ") + skill.name + " = ?";
    return s + " WHERE Id = ?";
  }();
  std::vector<Value> values{p.PlayerYear, int64_t{p.Intelligence}, p.Overall};
  for (const SkillColumn& skill : kSkillColumns) values.emplace_back(int64_t{p.*skill.field});
  values.emplace_back(int64_t{p.Id});
  store.ExecValues(sql, values);
}

}  // namespace

void DevelopBackgroundPlayer(Session& session, int id) {
  Player p;
  if (!LoadScrubPlayer(session.Db(), id, p)) return;
  // Background players never redshirt.
  DevelopPlayer(session, p, 0, kJuniorCollegeDevelopment, 1);
  // The draft flag means nothing for them: their seniors leave when the
  // field is refreshed next year.
  SaveScrubPlayer(session.Db(), p);
}

}  // namespace courtmere
