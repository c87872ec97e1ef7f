#include "screens/roster_view.h"

#include "people/player.h"
#include "platform/numeric.h"
#include "store/store.h"

namespace courtmere {

std::vector<RosterRow> TeamRoster(Store& store, const std::string& school) {
  std::vector<RosterRow> rows;
  for (Rows r = store.Query(
           "SELECT Id, Name, PlayerPosition, PlayerYear, Height, Health, ScoutOverall, Redshirt, "
           "Inactive, AthleticGrade, ScoreGrade, ShootingGrade, OutsideShootGrade, ReboundGrade, "
           "PerrDefenseGrade, PostDefenseGrade, HandlingGrade, PassingGrade, PotentialGrade "
           "FROM Player WHERE Team = ? ORDER BY ScoutOverall DESC, Id",
           school);
       r.Next();) {
    RosterRow row;
    row.Id = r.Int(0);
    row.Name = r.Text(1);
    row.Position = r.Int(2);
    row.PositionName = PositionName(row.Position);
    row.Year = r.Text(3);
    row.Height = r.Text(4);
    row.Health = r.Text(5);
    row.Overall = CInt(r.Double(6));
    row.Redshirt = r.Int(7);
    row.Inactive = r.Int(8) == 1;
    for (size_t g = 0; g < row.Grades.size(); ++g) row.Grades[g] = r.Text(9 + static_cast<int>(g));
    rows.push_back(std::move(row));
  }
  return rows;
}

DepthChart LoadDepthChart(Store& store, const std::string& school) {
  DepthChart chart;
  Rows r = store.Query(
      "SELECT PG1, SG1, SF1, PF1, C1, PG2, SG2, SF2, PF2, C2, PG3, SG3, SF3, PF3, C3, Inactive "
      "FROM Team WHERE SchoolName = ?",
      school);
  if (!r.Next()) return chart;
  for (int i = 0; i < 15; ++i) chart.ids[i] = r.Int(i);
  chart.inactive = r.Int(15);
  return chart;
}

TeamTactics LoadTactics(Store& store, const std::string& school) {
  TeamTactics tactics;
  Rows r = store.Query("SELECT Tempo, OffenseType, Defense, Press FROM Team WHERE SchoolName = ?",
                       school);
  if (!r.Next()) return tactics;
  tactics = {r.Text(0), r.Text(1), r.Text(2), r.Text(3)};
  if (tactics.Press.empty()) tactics.Press = "None";
  return tactics;
}

}  // namespace courtmere
