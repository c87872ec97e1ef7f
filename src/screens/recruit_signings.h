// The recruits who have chosen (News > Recruit Signings, "National recruit
// signings"), the academic test's list (News > Recruit Test Scores) and the
// recruiting classes by their points.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct SigningRow {
  std::string Name, Height, Position, HomeTown, HighSchool, Choice;
  int PosRank = 0;    // 0 when unranked
  int Top50Rank = 0;  // 0 when unranked

  // A rank as the list sorts it: an empty rank counts as 99.
  static int SortRank(int rank) { return rank > 0 ? rank : 99; }
};

inline constexpr const char* kSigningsTitle = "National recruit signings";

// Every recruit with a choice, by school, then by his rank at his position
// (empty as 99) and his name; `school` keeps one school's only.
std::vector<SigningRow> RecruitSignings(Store& store, const std::string& school = "");

struct ClassRow {
  int Rank = 0;  // ClassRank, 0 outside the ten best
  std::string School;
  double Points = 0;
  int Freshmen = 0;
  bool User = false;
};

// Every school's class, best points first.
std::vector<ClassRow> RecruitingClasses(Store& store);

}  // namespace courtmere
