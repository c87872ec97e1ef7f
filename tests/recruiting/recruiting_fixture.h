// A started season with the user's recruiting at hand: the pool's first
// recruits, his list filled through AddRecruit, and the week's points and
// the team's scholarships set for a test.
#pragma once

#include <string>
#include <vector>

#include "recruiting/recruit_list.h"
#include "season/season_fixture.h"

namespace courtmere::testing {

class RecruitingFixture : public SeasonFixture {
 protected:
  // The first n recruits of the pool, by id.
  std::vector<int> PoolRecruits(int n) {
    std::vector<int> ids;
    for (Rows r = store().Query("SELECT Id FROM Recruit ORDER BY Id LIMIT ?", n); r.Next();) {
      ids.push_back(r.Int(0));
    }
    return ids;
  }
  // Adds the first n recruits to the user's list and answers their ids.
  std::vector<int> ListRecruits(int n) {
    std::vector<int> ids = PoolRecruits(n);
    for (int id : ids) EXPECT_TRUE(AddRecruit(session(), id, "x").Done);
    return ids;
  }
  void SetPoints(int points) {
    store().Exec("UPDATE TeamRecruit SET PointsAvail = ? WHERE Team = ?", points, kUserSchool);
  }
  void SetScholarships(int n) {
    store().Exec("UPDATE Team SET Scholarships = ? WHERE SchoolName = ?", n, kUserSchool);
  }
  int PointsAvail() {
    return static_cast<int>(
        *store().ScalarInt("SELECT PointsAvail FROM TeamRecruit WHERE Team = ?", kUserSchool));
  }
  int TeamTotal(const std::string& column) {
    return static_cast<int>(
        *store().ScalarInt("SELECT " + column + " FROM TeamRecruit WHERE Team = ?", kUserSchool));
  }
  RecruitRow Row(int id) { return *UserRecruitRow(session(), id); }
};

}  // namespace courtmere::testing
