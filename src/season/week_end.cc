#include "season/week_end.h"

#include <vector>

#include "cpu/computer_roster.h"
#include "league/conf_tourney.h"
#include "league/cri.h"
#include "league/national_tourneys.h"
#include "league/poll.h"
#include "league/rank_history.h"
#include "league/team_ratings.h"
#include "season/academics.h"
#include "season/awards.h"
#include "season/heal_injuries.h"
#include "season/recruiting_week.h"
#include "season/season_observer.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::vector<std::string> Schools(Store& store) {
  std::vector<std::string> schools;
  for (Rows r = store.Query("SELECT SchoolName FROM Team ORDER BY rowid"); r.Next();) {
    schools.push_back(r.Text(0));
  }
  return schools;
}

void Progress(SeasonRun& run, const char* text) {
  run.session.ui.ShowProgress(text);
}

void UpdateBackgroundStats(SeasonRun& run, int games) {
  Progress(run, "Updating Stats");
  UpdateScrubStats(run.session, run.session.seasonStats, games);
}

void WriteScholarships(Session& session) {
  Store& store = session.Db();
  for (const std::string& school : Schools(store)) {
    store.Exec("UPDATE Team SET Scholarships = ? WHERE SchoolName = ?", Scholarships(store, school),
               school);
  }
}

void ScoutReport(SeasonRun& run, const char* text, int recruit) {
  if (!run.recruiting->SigningActive()) return;
  Progress(run, text);
  run.recruiting->ScoutRecruitReport(run.session, recruit);
}

void InterestReport(SeasonRun& run) {
  if (!run.recruiting->SigningActive()) return;
  Progress(run, "Checking Recruit Interest");
  run.recruiting->RecruitInterestReport(run.session);
}

void RecruitStatsUpdate(SeasonRun& run, int update, const char* text) {
  if (!run.recruiting->Active()) return;
  Progress(run, "Updating High School Scouting Reports");
  run.recruiting->UpdateRecruitStats(run.session, update);
  AddInboxMessage(run.session, "Head Scout", "Recruit Update", text);
}

void WeekTwo(SeasonRun& run) {
  Session& session = run.session;
  if (run.recruiting->Active()) {
    Progress(run, "Players Declaring for NBA draft");
    run.recruiting->DeclareNBARecruits(session);
  }
  WriteScholarships(session);
  if (run.recruiting->Active()) {
    AddInboxMessage(session, "Head Scout", "NBA Draft List",
                    "The list of underclassmen and recuits declaring for the NBA draft has been "
                    "released. Click News and Players Leaving Early from the main menu for the "
                    "full list.");
  }
}

void WeekTen(SeasonRun& run) {
  if (!run.recruiting->SigningActive()) return;
  Progress(run, "Checking High School Test scores");
  run.recruiting->RecruitTestScores(run.session, 1);
  if (run.observer != nullptr) run.observer->ShowTestScores();
}

// Every conference with a schedule type gets its tournament and its
// all-conference teams, then the nation its freshman and All America teams.
void SetUpPostseason(Session& session) {
  struct League {
    std::string conference;
    std::string schedType;
  };
  std::vector<League> leagues;
  for (Rows r = session.Db().Query(
           "SELECT Conference, SchedType FROM League WHERE SchedType <> '' ORDER BY Id");
       r.Next();) {
    leagues.push_back({r.Text(0), r.Text(1)});
  }
  for (const League& league : leagues) {
    SetupConfTourney(session, league.conference, ConfTourneySize(league.schedType));
    PickConferenceTeam(session, league.conference, "All");
    PickConferenceTeam(session, league.conference, "Freshman");
  }
  PickConferenceTeam(session, "National", "Freshman");
  PickNationalTeams(session);
}

void WeekFifteen(SeasonRun& run) {
  Session& session = run.session;
  Progress(run, "Setting up Postseason");
  session.Db().Exec("UPDATE Player SET Suspended = 0 WHERE Suspended = 1");
  AddInboxMessage(session, "Compliance Dir", "Academic Update",
                  "With the postseason coming up, we have been able to lift the suspensions for "
                  "some players.");
  SetUpPostseason(session);
  if (run.observer != nullptr) run.observer->ShowConferenceBracket(session.humanConference);
  AddInboxMessage(session, "Dynasty Gazette", "All-America Voting in!",
                  "The All-America votes have been tallied and the results are in. Check to see "
                  "if any " +
                      session.humanSchool +
                      " players made it by selecting the All America Team option from the "
                      "Headlines menu option.");
}

// The week's own events; the caption is set in its place among them.
void WeekEvents(SeasonRun& run, int week) {
  Session& session = run.session;
  switch (week) {
    case 1:
      UpdateBackgroundStats(run, 1);
      break;
    case 2:
      WeekTwo(run);
      break;
    case 3:
      ScoutReport(run, "Gathering info on top recruit", 1);
      AcademicCheck(session);
      InterestReport(run);
      break;
    case 4:
      RecruitStatsUpdate(run, 2,
                         "Our Scouts have updated the stats of the high school prospects. Check "
                         "out our five guys via the team recruiting option or the full pool in "
                         "the regional recruiting screen.");
      break;
    case 6:
      ScoutReport(run, "Gathering info on second recruit", 2);
      UpdateBackgroundStats(run, 12);
      // The year turns in the middle of the season.
      ++session.config.CurrYear;
      InterestReport(run);
      break;
    case 7:
      ScoutReport(run, "Gathering info on third recruit", 3);
      AcademicCheck(session);
      break;
    case 8:
      RecruitStatsUpdate(run, 3,
                         "Our Scouts have made a final update on the stats of the high school "
                         "prospects. Don't forget that you can only setup one campus visit per "
                         "Scholarship. So, keep that in mind when assigning Scholarships and "
                         "visits.");
      break;
    case 9:
      if (run.recruiting->SigningActive()) {
        Progress(run, "Scouts looking for a backup recruit");
        run.recruiting->FindBackupRecruit(session);
      }
      InterestReport(run);
      break;
    case 10:
      WeekTen(run);
      break;
    case 11:
      AcademicCheck(session);
      InterestReport(run);
      break;
    case 12:
      UpdateBackgroundStats(run, 24);
      break;
    case 15:
      WeekFifteen(run);
      break;
    default:
      break;
  }
  if (const std::string caption = WeekEndCaption(week); !caption.empty()) run.caption = caption;
  run.recruiting->WeekEnded(session, week);
}

// The computer's recruiting week and the reset of the week's decisions.
void RecruitingWeekEnd(SeasonRun& run, int week) {
  RecruitingWeek& recruiting = *run.recruiting;
  if (week >= 13 || !recruiting.Active()) return;
  recruiting.ClearWeekDecisions(run.session);
  if (recruiting.ComputerActive()) {
    Progress(run, "CPU Recruiting");
    recruiting.ComputerRecruiting(run.session, week, run.autoSim);
  }
  recruiting.ClearWeekBids(run.session);
  if (week >= 6) recruiting.EstimateTopBids(run.session);
}

}  // namespace

std::string WeekEndCaption(int week) {
  switch (week) {
    case 1:
    case 5:
    case 8:
    case 11:
      return "Courtmere (Contact Period)";
    case 3:
    case 10:
      return "Courtmere (Quiet Period)";
    case 6:
    case 9:
      return "Courtmere (Evaluation Period)";
    case 12:
    case 13:
    case 14:
      return "Courtmere (Dead Period)";
    case 15:
      return "Courtmere (Signing Period)";
    default:
      return "";
  }
}

void EndWeek(SeasonRun& run, int week, const std::string& day) {
  Session& session = run.session;
  HealInjuries(session);
  if (week == 16 && day == "Sunday") {
    Progress(run, "Updating Rankings");
    UpdateCRI(session);
    UpdatePoll(session);
    RecordRanks(session.Db(), week);
    SetupNationalTourneys(session);
    return;
  }
  if (week < 17) {
    PickPlayerOfWeek(session);
    if (week == 1) session.Db().Exec("DELETE FROM WeekAward WHERE id > 0");
    Progress(run, "Updating Rankings");
    if (week > 4) UpdateCRI(session);
    UpdatePoll(session);
    RecordRanks(session.Db(), week);
  }
  WeekEvents(run, week);
  RecruitingWeekEnd(run, week);
}

void WeekFiveEvents(SeasonRun& run) {
  Session& session = run.session;
  RecruitingWeek& recruiting = *run.recruiting;
  HealInjuries(session);
  if (recruiting.ComputerActive()) recruiting.ComputerRecruiting(session, 5, run.autoSim);
  UpdateCRI(session);
  RecordRanks(session.Db(), 5);
  if (recruiting.Active()) recruiting.ClearWeekDecisions(session);
  AddInboxMessage(session, "Dynasty Gazette", "CRI Ranking",
                  "A News Service has just released the current College Rating Index (CRI) for "
                  "this season. In this index, each team is judged on factors like winning "
                  "percentage and strength of schedule. Click National and View CRI to see these "
                  "rankings.");
  run.caption = WeekEndCaption(5);
  recruiting.WeekEnded(session, 5);
}

}  // namespace courtmere
