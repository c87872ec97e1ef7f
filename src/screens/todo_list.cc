#include "screens/todo_list.h"

#include <fmt/format.h>

#include "season/calendar.h"
#include "season/day_guards.h"
#include "store/session.h"

namespace courtmere {

namespace {

int64_t Count(Store& store, const char* sql, const std::string& school) {
  return store.ScalarInt(sql, school).value_or(0);
}

// The two guards of Sim Day that the user meets before his first game: his
// depth chart and his coaches' roles.
void AddLineupTasks(Session& session, std::vector<TodoItem>& list) {
  if (!ChartGuardRefusal(session).empty()) {
    list.push_back(
        {"Set your depth chart: every place filled with a man fit to play, and an "
         "inactive player chosen",
         "mnuManagementRoster"});
  }
  if (!CoachesGuardRefusal(session).empty()) {
    list.push_back({"Assign your coaches' roles: one runs the offense, one the defense",
                    "mnuStaffViewCoaches"});
  }
}

void AddRecruitingTasks(Session& session, std::vector<TodoItem>& list) {
  Store& store = session.Db();
  const std::string& school = session.humanSchool;
  const Config& c = session.config;
  if (c.CurrWeek > 15) return;
  if (c.CurrWeek < 13 &&
      Count(store, "SELECT count(*) FROM RecruitDecision WHERE Team = ?", school) == 0) {
    list.push_back({"Choose your recruits and rank them", "mnuRecruitViewTeam"});
  }
  const int64_t points = Count(store, "SELECT PointsAvail FROM TeamRecruit WHERE Team = ?", school);
  if (c.CurrWeek < 13 && points > 0) {
    list.push_back({fmt::format("Spend this week's recruiting points ({} left)", points),
                    "mnuRecruitViewTeam"});
  }
  const int64_t allowed =
      Count(store, "SELECT Scholarships FROM Team WHERE SchoolName = ?", school);
  const int64_t offered = Count(
      store, "SELECT count(*) FROM RecruitDecision WHERE Team = ? AND Scholarship = 1", school);
  if (allowed > 0 && offered != allowed) {
    list.push_back({fmt::format("Offer your scholarships by the end of week 15 ({} of {} given)",
                                offered, allowed),
                    "mnuRecruitViewTeam"});
  }
}

void AddSeasonTasks(Session& session, std::vector<TodoItem>& list) {
  AddLineupTasks(session, list);
  AddRecruitingTasks(session, list);
  const Config& c = session.config;
  if (c.CurrWeek <= kLastSeasonWeek) {
    list.push_back(
        {fmt::format("Play the games of {}, week {}", c.CurrDay, c.CurrWeek), "mnuSeasonSimGames"});
  }
}

void AddPreseasonTasks(Session& session, std::vector<TodoItem>& list) {
  const int64_t coaches =
      Count(session.Db(), "SELECT count(*) FROM Coach WHERE Team = ?", session.humanSchool);
  if (coaches < 3) list.push_back({"Hire three assistant coaches", "mnuStaffHireCoaches"});
  list.push_back({"Set your non-conference schedule", "mnuNonConfPre"});
  AddLineupTasks(session, list);
  list.push_back({"Start the season", "mnuOffSeasonStart"});
}

}  // namespace

std::vector<TodoItem> TodoList(Session& session) {
  std::vector<TodoItem> list;
  if (session.humanSchool.empty()) return list;
  const std::string& stage = session.config.Stage;
  if (stage == kStagePostTraining) AddPreseasonTasks(session, list);
  if (stage == kStageSeason) AddSeasonTasks(session, list);
  if (stage == kStageSeasonOver) list.push_back({"End the season", "mnuProgressEnd"});
  if (stage == kStageEndSeason) list.push_back({"Run the NBA draft", "mnuProgressRunDraft"});
  if (stage == kStageNbaDraft) {
    list.push_back({"Check the job openings", "mnuProgressJobs"});
    list.push_back({"Begin the offseason", "mnuProgressBeginOffseason"});
  }
  if (stage == kStageBeginOffSeason) {
    list.push_back({"Set up the training schedule", "mnuOffSeasonTrain"});
    list.push_back({"Train your players", "mnuOffSeasonTrainPlayers"});
  }
  return list;
}

}  // namespace courtmere
