#include "screens/coaching_staff.h"

#include "store/store.h"

namespace courtmere {

std::string StaffLetter(int rating) {
  if (rating > 80) return "A";
  if (rating > 70) return "B";
  if (rating > 55) return "C";
  if (rating > 40) return "D";
  return "F";
}

CoachingStaff LoadCoachingStaff(Store& store, const std::string& school) {
  CoachingStaff staff;
  staff.Caption = school + " Coaching Staff";
  for (Rows r = store.Query(
           "SELECT Id, Name, Salary, PGDev, SGDev, SFDev, PFDev, CDev, OffCoach, DefCoach, "
           "RecruitAbility, RecruitRegion, OffPoints, DefPoints, RecPoints FROM Coach "
           "WHERE Team = ? ORDER BY rowid",
           school);
       r.Next();) {
    StaffRow row;
    row.CoachId = r.Int(0);
    row.Cells[0] = r.Text(1);
    row.Cells[1] = std::to_string(r.Int(2));
    for (int i = 3; i <= 10; ++i) row.Cells[static_cast<size_t>(i - 1)] = StaffLetter(r.Int(i));
    row.Cells[10] = r.Text(11);
    for (int i = 12; i <= 14; ++i) row.Cells[static_cast<size_t>(i - 1)] = std::to_string(r.Int(i));
    staff.Rows.push_back(std::move(row));
  }
  return staff;
}

}  // namespace courtmere
