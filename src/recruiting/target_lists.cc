#include "recruiting/target_lists.h"

#include <algorithm>
#include <functional>

#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kMostTargets = 9;

std::vector<TargetRecruit> LoadPool(Store& store) {
  std::vector<TargetRecruit> pool;
  // Design decision: recruits level on Overall keep the order of their ids.
  for (Rows r = store.Query(
           "SELECT Player.Id, PlayerPosition, Recruit.Region, RecruitType, Recruit.Area, Team1, "
           "Team2, Team3 FROM Player, Recruit WHERE Player.Id = Recruit.Id AND NBAFlag = 0 "
           "ORDER BY Overall DESC, Player.Id");
       r.Next();) {
    pool.push_back(
        {r.Int(0), r.Int(1), r.Text(2), r.Text(3), r.Text(4), r.Text(5), r.Text(6), r.Text(7)});
  }
  return pool;
}

struct SchoolRow {
  TargetSchool school;
  bool human = false;
};

std::vector<SchoolRow> LoadSchools(Store& store) {
  std::vector<SchoolRow> schools;
  for (Rows r = store.Query(
           "SELECT SchoolName, Region, Area, TopPG, TopSG, TopSF, TopPF, TopC, Owner FROM Team "
           "WHERE SchoolName IS NOT NULL ORDER BY rowid");
       r.Next();) {
    SchoolRow row;
    row.school.name = r.Text(0);
    row.school.region = r.Text(1);
    row.school.area = r.Text(2);
    for (int p = 1; p <= 5; ++p) row.school.top[p] = r.Int(2 + p);
    row.human = r.Text(8) == "Human";
    schools.push_back(std::move(row));
  }
  return schools;
}

bool OneOf(const std::string& type, const char* a, const char* b) {
  return type == a || type == b;
}

// The nine passes, in order: each takes the recruits of its query that
// match it, from the first row on.
using Pass = std::function<bool(const TargetRecruit&, int need)>;

std::vector<Pass> Passes(const TargetSchool& s) {
  const std::string& n = s.name;
  return {
      [&n](const TargetRecruit& r, int) {
        return r.team1 == n && OneOf(r.recruitType, "Exc", "Good");
      },
      [&n](const TargetRecruit& r, int need) {
        return r.team1 == n && r.recruitType == "Average" && need > 2;
      },
      [&n](const TargetRecruit& r, int) {
        return r.team2 == n && OneOf(r.recruitType, "Exc", "Good");
      },
      [&n](const TargetRecruit& r, int need) {
        return r.team2 == n && r.recruitType == "Average" && need > 2;
      },
      [&n](const TargetRecruit& r, int need) {
        return r.team3 == n && OneOf(r.recruitType, "Good", "Average") && need > 2;
      },
      [&n](const TargetRecruit& r, int need) {
        return (r.team1 == n || r.team2 == n) && r.recruitType == "Average" && need < 3;
      },
      [&n](const TargetRecruit& r, int need) {
        return r.team3 == n && OneOf(r.recruitType, "Good", "Average") && need < 3;
      },
      [&s](const TargetRecruit& r, int need) {
        return OneOf(r.recruitType, "Good", "Average") && need > 3 && r.area == s.area;
      },
      [&s](const TargetRecruit& r, int need) {
        return OneOf(r.recruitType, "Good", "Average") && need > 3 && r.region == s.region &&
               r.area != s.area;
      },
  };
}

void WriteTeamRecruit(Store& store, const std::string& school, const std::array<int, 9>& places,
                      bool exists) {
  if (!exists) store.Exec("INSERT INTO TeamRecruit (Team) VALUES (?)", school);
  store.Exec(
      "UPDATE TeamRecruit SET Recruit1 = ?, Recruit2 = ?, Recruit3 = ?, Recruit4 = ?, "
      "Recruit5 = ?, Recruit6 = ?, Recruit7 = ?, Recruit8 = ? WHERE Team = ?",
      places[1], places[2], places[3], places[4], places[5], places[6], places[7], places[8],
      school);
}

void ComputerList(Store& store, const std::string& school, const std::vector<int>& targets) {
  std::array<int, 9> places{};
  for (int i = 1; i <= kTargets; ++i) {
    places[i] = i <= static_cast<int>(targets.size()) ? targets[i - 1] : 0;
  }
  for (int no = 1; no <= kListedTargets; ++no) {
    store.Exec("INSERT INTO RecruitDecision (Team, PlayerID, RecruitNo) VALUES (?, ?, ?)", school,
               places[no], no);
  }
  WriteTeamRecruit(store, school, places, false);
}

// The auto-sim fills the user's free places; his own recruits keep theirs.
void UserList(Store& store, const std::string& school, const std::vector<int>& targets) {
  std::array<int, 9> places{};
  std::vector<int> listed;
  for (Rows r = store.Query(
           "SELECT PlayerID, RecruitNo FROM RecruitDecision WHERE Team = ? ORDER BY RecruitNo, Id",
           school);
       r.Next();) {
    listed.push_back(r.Int(0));
    if (r.Int(1) >= 1 && r.Int(1) <= kListedTargets) places[r.Int(1)] = r.Int(0);
  }
  auto next = targets.begin();
  auto takeNext = [&]() {
    while (next != targets.end() &&
           std::find(listed.begin(), listed.end(), *next) != listed.end()) {
      ++next;
    }
    if (next == targets.end()) return 0;
    listed.push_back(*next);
    return *next++;
  };
  for (int no = 1; no <= kListedTargets && static_cast<int>(listed.size()) < kListedTargets; ++no) {
    if (places[no] != 0) continue;
    const int id = takeNext();
    if (id == 0) break;
    places[no] = id;
    store.Exec("INSERT INTO RecruitDecision (Team, PlayerID, RecruitNo) VALUES (?, ?, ?)", school,
               id, no);
  }
  for (int i = kListedTargets + 1; i <= kTargets; ++i) places[i] = takeNext();
  const bool exists =
      store.ScalarInt("SELECT count(*) FROM TeamRecruit WHERE Team = ?", school).value_or(0) > 0;
  WriteTeamRecruit(store, school, places, exists);
}

}  // namespace

std::array<int, 6> PositionNeed(const std::array<int, 6>& top) {
  std::array<int, 6> need{};
  for (int p = 1; p <= 5; ++p) {
    need[p] = 1;
    for (int q = 1; q <= 5; ++q) {
      if (top[q] > top[p]) ++need[p];
    }
  }
  return need;
}

std::vector<int> PickTargets(const TargetSchool& school, const std::vector<TargetRecruit>& pool) {
  const std::array<int, 6> need = PositionNeed(school.top);
  std::vector<int> targets;
  std::vector<const TargetRecruit*> named, others;
  for (const TargetRecruit& r : pool) (r.Names(school.name) ? named : others).push_back(&r);
  const std::vector<Pass> passes = Passes(school);
  for (size_t pass = 0; pass < passes.size(); ++pass) {
    const auto& rows = pass < 7 ? named : others;
    for (const TargetRecruit* r : rows) {
      if (static_cast<int>(targets.size()) >= kMostTargets) return targets;
      const int position = r->position >= 1 && r->position <= 5 ? r->position : 0;
      if (passes[pass](*r, position ? need[position] : 0)) targets.push_back(r->id);
    }
  }
  return targets;
}

void BuildRecruitLists(Session& session, bool userToo) {
  Store& store = session.Db();
  const std::vector<TargetRecruit> pool = LoadPool(store);
  for (const SchoolRow& row : LoadSchools(store)) {
    if (row.human && !userToo) continue;
    const std::vector<int> targets = PickTargets(row.school, pool);
    if (row.human) {
      UserList(store, row.school.name, targets);
    } else {
      ComputerList(store, row.school.name, targets);
    }
  }
}

void ReplaceIneligibleRecruits(Session& session, const std::string& school) {
  Store& store = session.Db();
  std::vector<int> lost;
  for (Rows r = store.Query("SELECT Id FROM Recruit WHERE InEligible = 1"); r.Next();) {
    lost.push_back(r.Int(0));
  }
  if (lost.empty()) return;
  std::array<int, 9> places{};
  {
    Rows r = store.Query(
        "SELECT Recruit1, Recruit2, Recruit3, Recruit4, Recruit5, Recruit6, Recruit7, Recruit8 "
        "FROM TeamRecruit WHERE Team = ?",
        school);
    if (!r.Next()) return;
    for (int i = 1; i <= kTargets; ++i) places[i] = r.Int(i - 1);
  }
  std::array<bool, 9> marked{};
  for (int i = 1; i <= kTargets; ++i) {
    marked[i] = places[i] == 0 || std::find(lost.begin(), lost.end(), places[i]) != lost.end();
  }
  bool changed = false;
  for (int n = 1; n <= kListedTargets; ++n) {
    if (!marked[n]) continue;
    int m = kListedTargets + 1;
    while (m <= kTargets && marked[m]) ++m;
    if (m > kTargets) continue;
    places[n] = places[m];
    places[m] = 0;
    marked[m] = true;
    marked[n] = false;
    changed = true;
    store.Exec(
        "UPDATE RecruitDecision SET PlayerID = ?, Call = 0, Assistant = 0, Visit = 0, "
        "CampusVisit = 0, Scholarship = 0, WeekDecision = 'none' WHERE Team = ? AND RecruitNo = ?",
        places[n], school, n);
  }
  if (changed) WriteTeamRecruit(store, school, places, true);
}

}  // namespace courtmere
