#include "people/player_writer.h"

#include <vector>

#include "store/store.h"

namespace courtmere {

namespace {

int64_t I(int v) {
  return v;
}

// The rating columns, which both player tables have.
void AddSkills(std::vector<Store::Column>& columns, const SkillRatings& ratings) {
  for (const SkillColumn& skill : kSkillColumns) {
    columns.emplace_back(skill.name, I(ratings.*skill.field));
  }
}

}  // namespace

void AddPlayer(Store& store, const Player& p) {
  std::vector<Store::Column> columns = {{"Id", I(p.Id)},
                                        {"Name", p.Name},
                                        {"AbbrName", p.AbbrName},
                                        {"PlayerYear", p.PlayerYear},
                                        {"HomeTown", p.HomeTown},
                                        {"HighSchool", p.HighSchool},
                                        {"Team", p.Team},
                                        {"Height", p.Height},
                                        {"PlayerPosition", I(p.PlayerPosition)},
                                        {"AvoidInjury", I(p.AvoidInjury)},
                                        {"Health", p.Health},
                                        {"TimeInjured", I(p.TimeInjured)},
                                        {"Potential", I(p.Potential)},
                                        {"Intelligence", I(p.Intelligence)},
                                        {"GPA", p.GPA},
                                        {"NBAFlag", I(p.NBAFlag)},
                                        {"Homesick", I(p.Homesick)},
                                        {"PlayWinner", I(p.PlayWinner)},
                                        {"AthleticGrade", p.AthleticGrade},
                                        {"ScoreGrade", p.ScoreGrade},
                                        {"ShootingGrade", p.ShootingGrade},
                                        {"OutsideShootGrade", p.OutsideShootGrade},
                                        {"ReboundGrade", p.ReboundGrade},
                                        {"PerrDefenseGrade", p.PerrDefenseGrade},
                                        {"PostDefenseGrade", p.PostDefenseGrade},
                                        {"HandlingGrade", p.HandlingGrade},
                                        {"PassingGrade", p.PassingGrade},
                                        {"PotentialGrade", p.PotentialGrade},
                                        {"Overall", p.Overall},
                                        {"ScoutOverall", p.ScoutOverall}};
  AddSkills(columns, p);
  store.Append("Player", columns);
}

void AddScrubPlayer(Store& store, const Player& p) {
  std::vector<Store::Column> columns = {{"Id", I(p.Id)},
                                        {"Name", p.Name},
                                        {"AbbrName", p.AbbrName},
                                        {"Height", p.Height},
                                        {"PlayerPosition", I(p.PlayerPosition)},
                                        {"Team", p.Team},
                                        {"AvoidInjury", I(p.AvoidInjury)},
                                        {"Health", p.Health},
                                        {"TimeInjured", I(p.TimeInjured)},
                                        {"PlayerYear", p.PlayerYear},
                                        {"Overall", p.Overall},
                                        {"Intelligence", I(p.Intelligence)},
                                        {"Potential", I(p.Potential)},
                                        {"ScoutOverall", p.ScoutOverall}};
  AddSkills(columns, p);
  store.Append("ScrubPlayer", columns);
}

void AddPlayerStats(Store& store, int id) {
  if (store.ScalarInt("SELECT Id FROM PlayerStats WHERE Id = ?", id)) return;
  store.Append("PlayerStats", {{"Id", I(id)}});
}

void SaveRecruit(Store& store, const Recruit& r) {
  if (store.ScalarInt("SELECT Id FROM Recruit WHERE Id = ?", r.Id)) {
    store.Exec(
        "UPDATE Recruit SET Region = ?, Area = ?, RecruitType = ?, ScoutingReport = ?, Team1 = ?, "
        "Team2 = ?, Team3 = ?, PPG = ?, APG = ?, RPG = ?, TOs = ?, SPG = ?, GPA = ? WHERE Id = ?",
        r.Region, r.Area, r.RecruitType, r.ScoutingReport, r.Team1, r.Team2, r.Team3, r.PPG, r.APG,
        r.RPG, r.TOs, r.SPG, r.GPA, r.Id);
    return;
  }
  store.Append("Recruit", {{"Id", I(r.Id)},
                           {"Region", r.Region},
                           {"Area", r.Area},
                           {"RecruitType", r.RecruitType},
                           {"ScoutingReport", r.ScoutingReport},
                           {"Team1", r.Team1},
                           {"Team2", r.Team2},
                           {"Team3", r.Team3},
                           {"PPG", r.PPG},
                           {"APG", r.APG},
                           {"RPG", r.RPG},
                           {"TOs", r.TOs},
                           {"SPG", r.SPG},
                           {"GPA", r.GPA}});
}

bool LoadPlayer(Store& store, int id, Player& p) {
  Rows rows = store.Query("SELECT * FROM Player WHERE Id = ?", id);
  if (!rows.Next()) return false;
  p.Id = rows.Int("Id");
  p.Name = rows.Text("Name");
  p.AbbrName = rows.Text("AbbrName");
  p.PlayerYear = rows.Text("PlayerYear");
  p.HomeTown = rows.Text("HomeTown");
  p.HighSchool = rows.Text("HighSchool");
  p.Team = rows.Text("Team");
  p.Height = rows.Text("Height");
  p.PlayerPosition = rows.Int("PlayerPosition");
  p.AvoidInjury = rows.Int("AvoidInjury");
  p.Health = rows.Text("Health");
  p.TimeInjured = rows.Int("TimeInjured");
  p.Potential = rows.Int("Potential");
  p.Intelligence = rows.Int("Intelligence");
  p.GPA = rows.Double("GPA");
  p.NBAFlag = rows.Int("NBAFlag");
  p.Homesick = rows.Int("Homesick");
  p.PlayWinner = rows.Int("PlayWinner");
  for (const SkillColumn& skill : kSkillColumns) p.*skill.field = rows.Int(skill.name);
  p.AthleticGrade = rows.Text("AthleticGrade");
  p.ScoreGrade = rows.Text("ScoreGrade");
  p.ShootingGrade = rows.Text("ShootingGrade");
  p.OutsideShootGrade = rows.Text("OutsideShootGrade");
  p.ReboundGrade = rows.Text("ReboundGrade");
  p.PerrDefenseGrade = rows.Text("PerrDefenseGrade");
  p.PostDefenseGrade = rows.Text("PostDefenseGrade");
  p.HandlingGrade = rows.Text("HandlingGrade");
  p.PassingGrade = rows.Text("PassingGrade");
  p.PotentialGrade = rows.Text("PotentialGrade");
  p.Overall = rows.Double("Overall");
  p.ScoutOverall = rows.Double("ScoutOverall");
  return true;
}

}  // namespace courtmere
