#include "screens/recruit_signings.h"

#include "people/player.h"
#include "store/store.h"

namespace courtmere {

std::vector<SigningRow> RecruitSignings(Store& store, const std::string& school) {
  std::vector<SigningRow> rows;
  for (Rows r = store.Query(
           "SELECT Name, Height, PlayerPosition, HomeTown, HighSchool, TeamChoice, PosRank, "
           "Top50Rank FROM Player JOIN Recruit ON Player.Id = Recruit.Id WHERE TeamChoice IS NOT "
           "NULL AND (? = '' OR TeamChoice = ?) ORDER BY TeamChoice, CASE WHEN PosRank > 0 THEN "
           "PosRank ELSE 99 END, Name",
           school, school);
       r.Next();) {
    rows.push_back({r.Text(0), r.Text(1), PositionName(r.Int(2)), r.Text(3), r.Text(4), r.Text(5),
                    r.Int(6), r.Int(7)});
  }
  return rows;
}

std::vector<ClassRow> RecruitingClasses(Store& store) {
  std::vector<ClassRow> rows;
  for (Rows r = store.Query(
           "SELECT ClassRank, SchoolName, ClassPoints, (SELECT count(*) FROM Player WHERE "
           "Player.Team = SchoolName AND PlayerYear = 'Freshman' AND Redshirt <> 2), Owner FROM "
           "Team WHERE SchoolName IS NOT NULL ORDER BY ClassPoints DESC, rowid");
       r.Next();) {
    rows.push_back({r.Int(0), r.Text(1), r.Double(2), r.Int(3), r.Text(4) == "Human"});
  }
  return rows;
}

}  // namespace courtmere
