#include "app/menu_tree.h"

namespace courtmere::app {

const std::vector<MenuEntry>& MenuTree() {
  static const std::vector<MenuEntry> tree = {
      {"mnuFile", nullptr, "&File", ""},
      {"mnuFileNew", "mnuFile", "&New", "Ctrl+N"},
      {"mnuFileLoad", "mnuFile", "&Load", "Ctrl+L"},
      {"mnuFileSave", "mnuFile", "&Save", "Ctrl+S"},
      {"mnuFileSetup", "mnuFile", "Dynasty &Options", ""},
      {"mnuFileQuit", "mnuFile", "&Quit", "Ctrl+Q"},

      {"mnuNational", nullptr, "&National", ""},
      {"mnuNationalTop25", "mnuNational", "&Top 25 poll", ""},
      {"mnuNationalCRI", "mnuNational", "&View CRI", ""},
      {"mnuNationalStandings", "mnuNational", "&Standings", ""},
      {"mnuNationalResults", "mnuNational", "Sche&dule", ""},
      {"mnuNationalLeaders", "mnuNational", "&Leaders", ""},
      {"mnuNationalInjuries", "mnuNational", "&Injuries", ""},
      {"mnuNationalRecords", "mnuNational", "&Records", ""},

      {"MnuConference", nullptr, "&Conference", ""},
      {"mnuConferenceStandings", "MnuConference", "&Standings", ""},
      {"mnuConferenceSchedule", "MnuConference", "Sche&dule", ""},
      {"mnuConferenceLeaders", "MnuConference", "&Leaders", ""},
      {"mnuConferenceInjuries", "MnuConference", "&Injuries", ""},
      {"MnuConferenceRecord", "MnuConference", "&Records", ""},

      {"mnuManagement", nullptr, "&Management", ""},
      {"mnuManagementInfo", "mnuManagement", "Team &Info", "Ctrl+I"},
      {"mnuManagementRoster", "mnuManagement", "Team &Roster", "Ctrl+R"},
      {"mnuManagementTeamStats", "mnuManagement", "Team &Stats", "Ctrl+T"},
      {"mnuManageRecord", "mnuManagement", "&Team Records", ""},
      {"mnuManageRoster", "mnuManagement", "Manage Roster", ""},
      {"mnuManagementDev", "mnuManagement", "Offseason Development", ""},
      {"mnuManagementPerformance", "mnuManagement", "View Performance", ""},

      {"mnuHeadlines", nullptr, "&Headlines", ""},
      {"mnuHeadlineBubble", "mnuHeadlines", "&NCT Bubble Watch", ""},
      {"mnuHeadlinePlayer", "mnuHeadlines", "&Player of the Week", ""},
      {"mnuHeadlinesAllAmerica", "mnuHeadlines", "All A&merica Team", ""},
      {"mnuHeadlineConf", "mnuHeadlines", "&Conference Awards", ""},
      {"mnuHeadlinesCoaches", "mnuHeadlines", "Top 10 &Coaches", ""},

      {"mnuSeason", nullptr, "&Season", ""},
      {"mnuSeasonSimGames", "mnuSeason", "&Sim Games", "Ctrl+G"},
      {"mnuSeasonViewGameLogs", "mnuSeason", "&View Game Logs", "Ctrl+V"},
      {"mnuSeasonScout", "mnuSeason", "Scout &Opponents", ""},
      {"mnuSimAll", "mnuSeason", "&Auto Sim", ""},
      {"mnuStartAutoSim", "mnuSimAll", "Star&t AutoSim", ""},
      {"mnuStopAutoSim", "mnuSimAll", "Sto&p AutoSim", ""},
      {"mnuSeasonPreseason", "mnuSeason", "View &Preseason Tournaments", ""},
      {"mnuSeasonHawaii", "mnuSeasonPreseason", "&Hawaii Classic", ""},
      {"mnuSeasonAlaska", "mnuSeasonPreseason", "&Alaska Challenge", ""},
      {"mnuSeasonPreACT", "mnuSeasonPreseason", "Preseason A&CT", ""},
      {"mnuPostseasonConf", "mnuSeason", "View &Conference Tournament", ""},
      {"mnuPostseasonNCT", "mnuSeason", "View &NCT", ""},
      {"mnuPostseasonACT", "mnuSeason", "View &ACT", ""},

      {"mnuRecruit", nullptr, "&Recruit", ""},
      {"mnuRecruitViewTeam", "mnuRecruit", "&View Team Recruits", ""},
      {"mnuRecruitViewRecruits", "mnuRecruit", "&List Recruits", ""},
      {"mnuRecruitViewRecruitsEast", "mnuRecruitViewRecruits", "&East", ""},
      {"mnuRecruitViewRecruitsMidwest", "mnuRecruitViewRecruits", "&Midwest", ""},
      {"mnuRecruitViewRecruitsSouth", "mnuRecruitViewRecruits", "&South", ""},
      {"mnuRecruitViewRecruitsWest", "mnuRecruitViewRecruits", "&West", ""},
      {"mnuRecruitInterested", "mnuRecruit", "&Show Interested Recruits", ""},
      {"mnuRecruitMagazine", "mnuRecruit", "&Magazine Rankings", ""},
      {"mnuRecruitMagazine50", "mnuRecruitMagazine", "Top 50 overall", ""},
      {"mnuRecruitMagazinePG", "mnuRecruitMagazine", "Top Point Guards", ""},
      {"mnuRecruitMagazineSG", "mnuRecruitMagazine", "Top Shooting Guards", ""},
      {"mnuRecruitMagazineSF", "mnuRecruitMagazine", "Top Small Forwards", ""},
      {"mnuRecruitMagazinePF", "mnuRecruitMagazine", "Top Power Forwards", ""},
      {"mnuRecruitMagazineC", "mnuRecruitMagazine", "Top Centers", ""},
      {"mnuRecruitTopClasses", "mnuRecruit", "&Top Incoming Recruting Classes", ""},

      {"mnuStaff", nullptr, "S&taff", ""},
      {"mnuStaffViewCoaches", "mnuStaff", "View Coaches", ""},
      {"mnuStaffHireCoaches", "mnuStaff", "Hire/Fire Coaches", ""},
      {"mnuStaffViewScout", "mnuStaff", "View Head Scout", ""},
      {"mnuStaffHireScout", "mnuStaff", "Hire/Fire Head Scout", ""},
      {"mnuStaffViewTrainer", "mnuStaff", "View Head Trainer", ""},
      {"mnuStaffHireTrainer", "mnuStaff", "Hire/Fire Head Trainer", ""},

      {"mnuProgress", nullptr, "Pro&gress", ""},
      {"mnuProgressEnd", "mnuProgress", "&End Season", ""},
      {"mnuProgressRunDraft", "mnuProgress", "Run &NBA Draft", ""},
      {"mnuProgressJobs", "mnuProgress", "Check &Job Openings", ""},
      {"mnuProgressBeginOffseason", "mnuProgress", "Begin &Offseason", ""},

      {"mnuOffSeason", nullptr, "&OffSeason", ""},
      {"mnuOffSeasonTrain", "mnuOffSeason", "Setup &Training Schedule", ""},
      {"mnuOffSeasonTrainPlayers", "mnuOffSeason", "Train &Players", ""},
      {"mnuOffSeasonNonConf", "mnuOffSeason", "Set &NonConference Schedule", ""},
      {"mnuNonConfPre", "mnuOffSeasonNonConf", "Set &Preconference Schedule", ""},
      {"mnuNonConfOther", "mnuOffSeasonNonConf", "Set Other NonConference Games", ""},
      {"mnuOffSeasonStart", "mnuOffSeason", "&Start Next Season", ""},

      {"mnuHistory", nullptr, "&History", ""},
      {"mnuHistoryNCT", "mnuHistory", "&NCT History", ""},
      {"mnuHistoryACT", "mnuHistory", "&ACT History", ""},
      {"mnuHistoryCoach", "mnuHistory", "&Coach History", ""},
      // Design decision: a school's history (with its alumni) has an entry
      // of its own, as have the two text reports of a school below.
      {"mnuHistorySchool", "mnuHistory", "&School History", ""},

      {"mnuNews", nullptr, "Ne&ws", ""},
      {"mnuNewsTeamNotes", "mnuNews", "Team &Notes", "Ctrl+U"},
      {"mnuNewsSuspensions", "mnuNews", "&Player Suspensions", "Ctrl+A"},
      {"mnuNewsPlayersLeaving", "mnuNews", "Players Leaving &Early", "Ctrl+W"},
      {"mnuNewsTestScores", "mnuNews", "Recruit &Test Scores", ""},
      {"mnuNewsRecruitSignings", "mnuNews", "&Recruit Signings", "Ctrl+E"},
      {"mnuNewsNBADraft", "mnuNews", "Check NBA &Draft Results", ""},

      // Design decision: the two draft-pool exports are named for the games
      // that read them.
      {"mnuOutput", nullptr, "Ou&tput", ""},
      {"mnuOutputDraft", "mnuOutput", "&Draft Pool", ""},
      {"mnuOutputDraftJSB", "mnuOutputDraft", "&JSB Draft Pool", ""},
      {"mnuOutputDraftFBB", "mnuOutputDraft", "&FBB Draft Pool", ""},
      {"mnuOutputMochDraft", "mnuOutput", "&NBA Draft", ""},
      {"mnuOutputTeamStats", "mnuOutput", "&Team Stats File", ""},
      {"mnuOutputRoster", "mnuOutput", "Team &Roster File", ""},

      {"mnuHelp", nullptr, "&Help", ""},
      {"mnuHelpContents", "mnuHelp", "&Contents", ""},
      {"mnuHelpAbout", "mnuHelp", "&About", ""},
  };
  return tree;
}

}  // namespace courtmere::app
