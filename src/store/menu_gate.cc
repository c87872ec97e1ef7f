#include "store/menu_gate.h"

#include <initializer_list>
#include <optional>

#include "platform/ui.h"
#include "store/config.h"
#include "store/session.h"

namespace courtmere {
namespace {

using Names = std::initializer_list<const char*>;

// The entries that follow the calendar, closed first at every pass.
constexpr Names kClearedEntries = {"mnuOutput",
                                   "MnuConference",
                                   "mnuNational",
                                   "mnuManagement",
                                   "mnuNews",
                                   "mnuHeadlines",
                                   "mnuRecruit",
                                   "mnuSeason",
                                   "mnuStaff",
                                   "mnuHistory",
                                   "mnuFileSave",
                                   "mnuOffSeason",
                                   "mnuProgress",
                                   "mnuNationalCRI",
                                   "mnuHeadlineBubble",
                                   "mnuManageRoster",
                                   "mnuHeadlinePlayer",
                                   "mnuHeadlinesAllAmerica",
                                   "mnuHeadlineConf",
                                   "mnuHeadlinesCoaches",
                                   "mnuPostseasonConf",
                                   "mnuPostseasonNCT",
                                   "mnuPostseasonACT",
                                   "mnuStaffHireCoaches",
                                   "mnuStaffHireScout",
                                   "mnuStaffHireTrainer",
                                   "mnuProgressRunDraft",
                                   "mnuProgressJobs",
                                   "mnuProgressBeginOffseason",
                                   "mnuOffSeasonNonConf",
                                   "mnuOffSeasonStart",
                                   "mnuNewsPlayersLeaving",
                                   "mnuNewsRecruitSignings",
                                   "mnuNewsTestScores",
                                   "mnuNewsNBADraft",
                                   "mnuOutputDraft",
                                   "mnuOutputMochDraft"};

// Design decision: entries that the gate opens or closes without closing them
// first start open at every pass, so the gate is a function of the store
// alone and a load never inherits the menus of the dynasty before it.
constexpr Names kOpenEntries = {"mnuFile",
                                "mnuHelp",
                                "mnuFileLoad",
                                "mnuFileNew",
                                "mnuManagementRoster",
                                "mnuManagementTeamStats",
                                "mnuOffSeasonTrain",
                                "mnuOffSeasonTrainPlayers",
                                "mnuProgressEnd",
                                "mnuStartAutoSim",
                                "mnuStopAutoSim"};

constexpr Names kSeasonMenus = {"mnuOutput",     "MnuConference", "mnuNational",
                                "mnuManagement", "mnuNews",       "mnuHeadlines",
                                "mnuRecruit",    "mnuSeason",     "mnuStaff"};

struct StageRule {
  const char* stage;
  Names open;
  Names close;
  const char* title;  // null: the title of the week
};

const StageRule kStageRules[] = {
    {kStageSeasonOver,
     {"mnuOutputDraft", "mnuProgress", "mnuProgressEnd"},
     {"mnuNewsRecruitSignings"},
     nullptr},
    {kStageEndSeason,
     {"mnuProgressRunDraft", "mnuNewsRecruitSignings", "mnuOutputDraft", "mnuProgress",
      "mnuHeadlinesCoaches"},
     {"mnuManageRoster", "mnuProgressEnd"},
     "Courtmere (End of Season)"},
    {kStageNbaDraft,
     {"mnuProgressBeginOffseason", "mnuNewsNBADraft", "mnuHeadlinesAllAmerica", "mnuHeadlineConf",
      "mnuHeadlinesCoaches", "mnuProgressJobs", "mnuProgress", "mnuOutputMochDraft"},
     {"mnuProgressRunDraft", "mnuProgressEnd"},
     "Courtmere (End of Season)"},
    {kStageBeginOffSeason,
     {"mnuOffSeason", "mnuOffSeasonTrain", "mnuOffSeasonTrainPlayers", "mnuNewsNBADraft"},
     {"mnuOutputDraft", "mnuOutputMochDraft", "mnuProgress", "mnuProgressJobs",
      "mnuProgressBeginOffseason", "mnuManageRoster", "mnuManagementRoster",
      "mnuManagementTeamStats", "mnuHeadlinesAllAmerica", "mnuHeadlineConf", "mnuHeadlinesCoaches"},
     "Courtmere (OffSeason Period)"},
    {kStagePostTraining,
     {"mnuStaffHireCoaches", "mnuStaffHireScout", "mnuStaffHireTrainer", "mnuManagementRoster",
      "mnuManagementTeamStats", "mnuManageRoster", "mnuOffSeason", "mnuOffSeasonNonConf",
      "mnuOffSeasonStart"},
     {"mnuNewsRecruitSignings", "mnuOutputDraft", "mnuNewsNBADraft", "mnuOffSeasonTrain",
      "mnuOffSeasonTrainPlayers", "mnuRecruit", "MnuConference", "mnuNational", "mnuHeadlines",
      "mnuPostseasonConf", "mnuPostseasonNCT", "mnuPostseasonACT", "mnuProgress", "mnuSeason",
      "mnuNews"},
     "Courtmere (OffSeason Period)"},
    {kStageSeason,
     {},
     {"mnuStaffHireCoaches", "mnuStaffHireScout", "mnuStaffHireTrainer", "mnuOffSeasonStart",
      "mnuOffSeason", "mnuOffSeasonNonConf"},
     nullptr},
};

void Set(MenuGateState& state, Names names, bool open) {
  for (const char* name : names) state.entries[name] = open;
}

// The human school of the first HeadCoach row: "Fired-<school>" after a
// firing still names the school.
std::string HumanSchool(Store& store) {
  std::string team =
      store.ScalarText("SELECT Team FROM HeadCoach ORDER BY Id LIMIT 1").value_or("");
  if (team.rfind("Fired", 0) == 0) team = team.size() > 6 ? team.substr(6) : "";
  return team;
}

void OpenByWeek(MenuGateState& state, int w) {
  state.entries["mnuHeadlinePlayer"] = w >= 2;
  state.entries["mnuNewsPlayersLeaving"] = w >= 3;
  Set(state, {"mnuNationalCRI", "mnuHeadlineBubble"}, w >= 6);
  state.entries["mnuNewsTestScores"] = w >= 12;
  Set(state, {"mnuPostseasonConf", "mnuHeadlinesAllAmerica", "mnuHeadlineConf"}, w > 15);
  Set(state, {"mnuStartAutoSim", "mnuStopAutoSim"}, w < 15);
  Set(state, {"mnuPostseasonNCT", "mnuPostseasonACT"}, w >= 17);
}

// Any other stage ("Preseason" included) changes nothing.
void ApplyStage(MenuGateState& state, const std::string& stage) {
  for (const StageRule& rule : kStageRules) {
    if (stage != rule.stage) continue;
    Set(state, rule.open, true);
    Set(state, rule.close, false);
    if (rule.title) state.title = rule.title;
  }
}

std::string Fatal(std::string_view text) {
  return std::string(text) + std::string(kSupportContact);
}

// The session's copies of the calendar, the stage and the options; the id
// counters stay as the flows hold them.
void CopyCalendarAndOptions(Session& session) {
  if (session.Db().ScalarInt("SELECT count(*) FROM Config WHERE IdConfig = 0").value_or(0) == 0) {
    return;
  }
  const Config stored = LoadConfig(session.Db());
  Config& c = session.config;
  c.CurrWeek = stored.CurrWeek;
  c.CurrDay = stored.CurrDay;
  c.CurrYear = stored.CurrYear;
  c.Stage = stored.Stage;
  c.NumPlayers = stored.NumPlayers;
  c.PlayByPlay = stored.PlayByPlay;
  c.Autosave = stored.Autosave;
  c.SimSpeed = stored.SimSpeed;
}

}  // namespace

bool MenuGateState::Open(std::string_view entry) const {
  const auto it = entries.find(entry);
  return it == entries.end() || it->second;
}

std::string PeriodTitle(int w) {
  const char* period = nullptr;
  if (w == 1) period = "Dead Period";
  if (w == 2 || w == 3 || w == 6 || w == 9 || w == 12) period = "Contact Period";
  if (w == 4 || w == 5 || w == 11) period = "Quiet Period";
  if (w == 7 || w == 8 || w == 10) period = "Evaluation Period";
  if (w >= 13 && w <= 17) period = "Signing Period";
  if (w == 18 || w == 19) period = "End of Season";
  if (w > 19) period = "OffSeason Period";
  // Design decision: a week before the first keeps the bare program name.
  if (!period) return std::string(kProgramTitle);
  return std::string(kProgramTitle) + " (" + period + ")";
}

MenuGateState StartUpMenus() {
  MenuGateState state;
  Set(state, kClearedEntries, false);
  Set(state, kOpenEntries, true);
  Set(state, {"mnuFile", "mnuHelp"}, false);
  state.title = std::string(kProgramTitle);
  return state;
}

MenuGateState ComputeMenuGate(Store& store) {
  MenuGateState state;
  Set(state, kOpenEntries, true);
  Set(state, kClearedEntries, false);
  state.title = std::string(kProgramTitle);

  const std::string school = HumanSchool(store);
  const std::optional<std::string> conference =
      store.ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", school);
  if (!conference) {
    Set(state, kSeasonMenus, false);
    return state;
  }
  state.dynasty = true;
  state.humanSchool = school;
  state.humanConference = *conference;
  Set(state, kSeasonMenus, true);
  Set(state, {"mnuManageRoster", "mnuHistory", "mnuFileSave"}, true);
  Set(state, {"mnuHeadlinesAllAmerica", "mnuHeadlineConf"}, false);

  const std::optional<int64_t> league =
      store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", *conference);
  if (league) {
    state.humanScheduleTable = "League" + std::to_string(*league) + "Schedule";
  } else {
    state.messages.push_back(Fatal("Error, cannot Load schedule. Contact "));
    Set(state,
        {"MnuConference", "mnuManagement", "mnuNews", "mnuHeadlines", "mnuRecruit", "mnuSeason",
         "mnuStaff", "mnuHistory"},
        false);
  }

  Rows calendar = store.Query("SELECT CurrWeek, Stage FROM Config WHERE IdConfig = 0");
  if (!calendar.Next()) {
    state.messages.push_back(Fatal("Start Error - Contact "));
    state.fatal = true;
    return state;
  }
  const int week = calendar.Int(0);
  state.title = PeriodTitle(week);
  OpenByWeek(state, week);
  ApplyStage(state, calendar.Text(1));
  return state;
}

MenuGateState MenuGate(Session& session) {
  MenuGateState state = ComputeMenuGate(session.Db());
  session.humanSchool = state.humanSchool;
  session.humanConference = state.humanConference;
  session.humanScheduleTable = state.humanScheduleTable;
  if (!state.fatal) CopyCalendarAndOptions(session);
  for (const std::string& message : state.messages) session.ui.Message(message);
  return state;
}

}  // namespace courtmere
