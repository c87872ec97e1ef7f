#include "screens/coaching_staff.h"

#include "career/staff_market.h"
#include "store/store.h"

namespace courtmere {

std::string StaffLetter(int rating) {
  if (rating > 80) return "A";
  if (rating > 70) return "B";
  if (rating > 55) return "C";
  if (rating > 40) return "D";
  return "F";
}

namespace {

// The rows of Coach whose Team matches `team` under the query's comparison.
std::vector<StaffRow> CoachRows(Store& store, const char* where, const std::string& team) {
  std::vector<StaffRow> rows;
  for (Rows r = store.Query(
           std::string("SELECT Id, Name, Salary, PGDev, SGDev, SFDev, PFDev, CDev, OffCoach, "
                       "DefCoach, RecruitAbility, RecruitRegion, OffPoints, DefPoints, RecPoints "
                       "FROM Coach WHERE ") +
               where + " ORDER BY rowid",
           team);
       r.Next();) {
    StaffRow row;
    row.CoachId = r.Int(0);
    row.Cells[0] = r.Text(1);
    row.Cells[1] = std::to_string(r.Int(2));
    for (int i = 3; i <= 10; ++i) row.Cells[static_cast<size_t>(i - 1)] = StaffLetter(r.Int(i));
    row.Cells[10] = r.Text(11);
    for (int i = 12; i <= 14; ++i) row.Cells[static_cast<size_t>(i - 1)] = std::to_string(r.Int(i));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

CoachingStaff LoadCoachingStaff(Store& store, const std::string& school) {
  CoachingStaff staff;
  staff.Caption = school + " Coaching Staff";
  staff.Rows = CoachRows(store, "Team = ?", school);
  return staff;
}

std::vector<StaffRow> LoadCoachCandidates(Store& store, const std::string& school) {
  return CoachRows(store, "Team = ? COLLATE NOCASE", CandidateTeam(school));
}

}  // namespace courtmere
