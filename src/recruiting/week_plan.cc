#include "recruiting/week_plan.h"

#include <vector>

#include "recruiting/recruit_points.h"
#include "recruiting/target_lists.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kCall = "Call";
constexpr const char* kAssistant = "Assistant";
constexpr const char* kVisit = "Visit";
constexpr const char* kCampus = "CampusVisit";

// An action taken only with more than `more` scholarships, else a Call.
const char* IfMore(int scholarships, int more, const char* action) {
  return scholarships > more ? action : kCall;
}

// The TeamRecruit column that counts an action's season total.
const char* TotalColumn(const std::string& action) {
  if (action == kAssistant) return "Assistants";
  if (action == kVisit) return "Visits";
  if (action == kCampus) return "CampusVisits";
  return "Calls";
}

}  // namespace

std::array<std::string, 5> PlannedActions(int week, int c) {
  switch (week) {
    case 2:
      return {kCall, kAssistant, kAssistant, IfMore(c, 3, kVisit), IfMore(c, 4, kCampus)};
    case 3:
      return {kAssistant, kCall, kVisit, IfMore(c, 3, kCampus), kAssistant};
    case 6:
      return {kCampus, kVisit, kAssistant, kAssistant, kCall};
    case 7:
      return {kVisit, kCall, kAssistant, kCall, kAssistant};
    case 8:
      return {kAssistant, kAssistant, kVisit, kAssistant, kCall};
    case 9:
      return {kVisit, IfMore(c, 1, kCampus), kCall, kAssistant, kAssistant};
    case 10:
      return {kAssistant, kVisit, kCall, kCall, kCall};
    case 12:
      return {kCall, kAssistant, IfMore(c, 2, kCampus), IfMore(c, 3, kVisit), kCall};
    default:  // weeks 4, 5 and 11: calls only
      return {kCall, kCall, kCall, kCall, kCall};
  }
}

int PlannedBid(std::string& action, int p) {
  if (p < 10 && action != kCall) action = kCall;
  // Each kind falls through to the next one's rule when the points are short;
  // the action keeps its name.
  if (action == kCampus) {
    if (p >= 41) return 40;
    if (p >= 31) return p;
  }
  if (action == kCampus || action == kVisit) {
    if (p >= 31) return 30;
    if (p >= 21) return p;
  }
  if (action != kCall) {
    if (p > 20) return 20;
    if (p >= 11) return p;
  }
  return p > 10 ? 10 : p;
}

void TeamWeekRecruiting(Session& session, const std::string& school, int week,
                        RecruitingPeriod period, bool user) {
  Store& store = session.Db();
  const int scholarships = static_cast<int>(
      store.ScalarInt("SELECT Scholarships FROM Team WHERE SchoolName = ?", school).value_or(0));
  int points = 0;
  WeeklyRecruitPoints(session, school, period, points);
  if (user && store.ScalarInt("SELECT count(*) FROM RecruitDecision WHERE Team = ? AND "
                              "WeekBid <> 0",
                              school)
                      .value_or(0) > 0) {
    return;
  }
  if (week == 4) ReplaceIneligibleRecruits(session, school);
  std::array<std::string, 5> actions = PlannedActions(week, scholarships);
  std::array<int, 5> bids{};
  for (int i = 0; i < 5; ++i) {
    bids[i] = PlannedBid(actions[i], points);
    points -= bids[i];
  }
  struct Row {
    int id, no;
  };
  std::vector<Row> rows;
  for (Rows r = store.Query(
           "SELECT Id, RecruitNo FROM RecruitDecision WHERE Team = ? ORDER BY RecruitNo, Id",
           school);
       r.Next();) {
    rows.push_back({r.Int(0), r.Int(1)});
  }
  for (const Row& row : rows) {
    if (row.no < 1 || row.no > 5) continue;
    const std::string& action = actions[row.no - 1];
    // The action's name is a fixed column name, never user text.
    store.Exec("UPDATE RecruitDecision SET " + action + " = " + action +
                   " + 1, RecruitPoints = RecruitPoints + ?, WeekDecision = ? WHERE Id = ?",
               bids[row.no - 1], action, row.id);
    if (week == 8 && row.no <= scholarships) {
      store.Exec("UPDATE RecruitDecision SET Scholarship = 1 WHERE Id = ?", row.id);
    }
    const std::string total = TotalColumn(action);
    store.Exec("UPDATE TeamRecruit SET " + total + " = " + total + " + 1 WHERE Team = ?", school);
  }
}

void RunCPURecruiting(Session& session, int week, RecruitingPeriod period, bool userToo) {
  std::vector<std::pair<std::string, bool>> teams;
  for (Rows r = session.Db().Query(
           "SELECT SchoolName, Owner FROM Team WHERE SchoolName IS NOT NULL ORDER BY rowid");
       r.Next();) {
    const bool human = r.Text(1) == "Human";
    if (!human || userToo) teams.emplace_back(r.Text(0), human);
  }
  for (const auto& [school, human] : teams) {
    TeamWeekRecruiting(session, school, week, period, human);
  }
}

}  // namespace courtmere
