// frmStaff: the user's assistant coaches with their skills as letters and
// their roles as points, and in hire mode the coaches looking at his school.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

class Store;

// A staff rating as a letter: above 80 "A", above 70 "B", above 55 "C",
// above 40 "D", else "F".
std::string StaffLetter(int rating);

inline constexpr std::array<const char*, 14> kStaffColumns = {
    "Name", "Salary", "PGs",     "SGs",    "SFs",     "PFs",     "Cs",
    "Off",  "Def",    "Ability", "Region", "Offense", "Defense", "Recruiting"};

struct StaffRow {
  int CoachId = 0;
  // The cells under kStaffColumns, as shown.
  std::array<std::string, kStaffColumns.size()> Cells;
};

struct CoachingStaff {
  std::string Caption;  // "<school> Coaching Staff"
  std::vector<StaffRow> Rows;
};

CoachingStaff LoadCoachingStaff(Store& store, const std::string& school);

// The coaches looking at the school: the hire screen's lower list.
std::vector<StaffRow> LoadCoachCandidates(Store& store, const std::string& school);

}  // namespace courtmere
