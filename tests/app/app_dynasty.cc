#include "app_dynasty.h"

#include "cpu/computer_roster.h"
#include "engine/post_game.h"
#include "engine/run_engine.h"
#include "people/player_creation.h"
#include "people/staff_creation.h"
#include "screens/coach_roles.h"
#include "store/blank_store.h"
#include "store/season_stats.h"
#include "store/store_files.h"

namespace courtmere::testing {

AppDynasty::AppDynasty(uint64_t seed) {
  session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(seed), ui_);
  StartUp(*session_);
  Store& s = store();
  Store::Transaction tx(s);
  s.Append("League", {{"Id", int64_t{1}}, {"Conference", kConference}, {"SchedType", "4"}});
  AddSchool(kHuman, "East", 70, "Human");
  AddSchool("Duke", "South", 90, "Computer");
  AddSchool("Clemson", "South", 50, "Computer");
  AddSchool(kAccented, "East", 40, "Computer");
  s.Append("HeadCoach", {{"Name", "Pat O'Neil"}, {"Team", kHuman}});
  CreateCoaches(session(), 0);
  CreateScouts(session(), 0);
  CreateTrainers(session(), 0);
  for (Rows r =
           s.Query("SELECT SchoolName, Region, InitialPrestige, Owner FROM Team ORDER BY rowid");
       r.Next();) {
    const std::string school = r.Text(0);
    // The computer gives its own teams their roles; the user names his on
    // the roles screen.
    if (r.Text(3) != "Human") SetCoachRoles(session(), school);
    CreateTeamRoster(session(), school, r.Text(1), r.Int(2));
    SetTeamLineup(session(), school, 0);
  }
  // A player whose name needs more than ASCII.
  s.Exec(
      "UPDATE Player SET Name = ?, AbbrName = ? WHERE Id = (SELECT min(Id) FROM Player "
      "WHERE Team = ?)",
      "José Núñez", "J. Núñez", kHuman);
  tx.Commit();
  SetCalendar("Season", 3);
  LoadSeasonStats(session());
}

void AppDynasty::AddSchool(const std::string& school, const std::string& region, int prestige,
                           const std::string& owner) {
  store().Append("Team", {{"SchoolName", school},
                          {"State", "NY"},
                          {"Location", "Queens"},
                          {"Area", "NY"},
                          {"Region", region},
                          {"Population", int64_t{2270976}},
                          {"ArenaCapacity", int64_t{5602}},
                          {"Colors", "Red and White"},
                          {"Conference", kConference},
                          {"Division", "None"},
                          {"InitialPrestige", int64_t{prestige}},
                          {"Prestige", double(prestige)},
                          {"Owner", owner},
                          {"Tempo", "Normal"},
                          {"OffenseType", "Normal"},
                          {"Defense", "Man"},
                          {"Press", "None"}});
  store().Append("TeamStats", {{"SchoolName", school}});
}

void AppDynasty::NameCoachRoles() {
  CoachRoles roles = LoadCoachRoles(store(), kHuman);
  ChooseOffence(roles, 0, 1);
  ChooseDefence(roles, 1, 1);
  SubmitCoachRoles(session(), roles);
}

void AppDynasty::SetCalendar(const std::string& stage, int week) {
  store().Exec("UPDATE Config SET Stage = ?, CurrWeek = ? WHERE IdConfig = 0", stage, week);
  session().config.Stage = stage;
  session().config.CurrWeek = week;
}

int AppDynasty::PlayGame(const std::string& home, const std::string& away, int week,
                         const std::string& day, bool conference) {
  Session& s = session();
  GameRequest request;
  request.HomeTeam = home;
  request.AwayTeam = away;
  request.GameType = conference ? "Conference" : "NonConference";
  request.BatchIndex = 1;
  request.GameNo = ++s.config.MaxGameNo;
  std::string box;
  std::string log = "log";
  auto game = std::make_unique<Game>(s);
  auto results = std::make_unique<DayResults>();
  if (RunEngine(*game, *results, request, box, log) != 1) return 0;
  RecordPlayerStats(*results, s.seasonStats, s.config, request.BatchIndex);
  RecordTeamStats(store(), *results, request.BatchIndex);
  const DayTeamLine& line = results->TeamLines[request.BatchIndex];
  const char* table = conference ? "League1Schedule" : "NonConfSchedule";
  store().Append(table, {{"GameNo", int64_t{request.GameNo}},
                         {"Week", int64_t{week}},
                         {"GameDay", day},
                         {"HomeTeam", home},
                         {"AwayTeam", away},
                         {"GameType", request.GameType},
                         {"HomeScore", int64_t{line.Home.Points}},
                         {"AwayScore", int64_t{line.Away.Points}},
                         {"GameLog", log},
                         {"BoxScore", box}});
  store().Exec("UPDATE Config SET MaxGameNo = ? WHERE IdConfig = 0", s.config.MaxGameNo);
  return request.GameNo;
}

void AppDynasty::ScheduleGame(const std::string& home, const std::string& away, int week,
                              const std::string& day) {
  store().Append("NonConfSchedule", {{"GameNo", int64_t{++session().config.MaxGameNo}},
                                     {"Week", int64_t{week}},
                                     {"GameDay", day},
                                     {"HomeTeam", home},
                                     {"AwayTeam", away},
                                     {"GameType", "NonConference"}});
}

}  // namespace courtmere::testing
