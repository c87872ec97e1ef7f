// The computer's target lists: at the end of week 1 every computer team
// picks up to eight recruits, best first, by whether the recruit names the
// school, his class and the team's need at his position. The first five go
// on the team's live list (RecruitDecision), all eight into its TeamRecruit
// row; the last three are the reserve that replaces a lost target in week 4.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

struct Session;

inline constexpr int kTargets = 8;
inline constexpr int kListedTargets = 5;

// Need(p) for positions 1 (PG) to 5 (C): 1 + the number of positions whose
// best man (top[q]) is better than top[p]. 1 is the team's strongest spot.
std::array<int, 6> PositionNeed(const std::array<int, 6>& top);

// One recruit as the lists read him.
struct TargetRecruit {
  int id = 0;
  int position = 0;
  std::string region, recruitType, area;
  std::string team1, team2, team3;

  bool Names(const std::string& school) const {
    return team1 == school || team2 == school || team3 == school;
  }
};

// The school as the lists read it.
struct TargetSchool {
  std::string name, region, area;
  std::array<int, 6> top{};  // TopPG .. TopC at 1 .. 5
};

// The up to nine targets of `school` from `pool` (best Overall first), in
// the order of the nine passes.
std::vector<int> PickTargets(const TargetSchool& school, const std::vector<TargetRecruit>& pool);

// Every computer team's list, and the user's as well when `userToo` (the
// auto-sim): his listed recruits stay and his free places up to five are
// filled from his targets in order.
void BuildRecruitLists(Session& session, bool userToo);

// Week 4: the targets who can no longer sign (InEligible = 1) give their
// places 1 to 5 to the first of the reserve; the points spent stay with the
// place.
void ReplaceIneligibleRecruits(Session& session, const std::string& school);

}  // namespace courtmere
