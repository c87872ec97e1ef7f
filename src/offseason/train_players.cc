#include "offseason/train_players.h"

#include <string>
#include <vector>

#include "cpu/computer_roster.h"
#include "league/final_offseason_tasks.h"
#include "league/head_coach.h"
#include "league/scrub_teams.h"
#include "league/team_ratings.h"
#include "offseason/background_development.h"
#include "offseason/career_steps.h"
#include "offseason/develop_player.h"
#include "offseason/signed_recruits.h"
#include "offseason/training_table.h"
#include "people/player_creation.h"
#include "people/player_writer.h"
#include "people/staff_creation.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "schedule/league_schedule.h"
#include "store/menu_gate.h"
#include "store/season_stats.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kIdWrap = 25000;
constexpr int kLeagues = 9;

struct Trainee {
  int id = 0;
  int redshirt = 0;
};

std::vector<Trainee> Trainees(Store& store, std::string_view where, const std::string& arg) {
  std::vector<Trainee> list;
  for (Rows rows = store.Query("SELECT Id, coalesce(Redshirt, 0) FROM Player WHERE " +
                                   std::string(where) + " ORDER BY PlayerPosition, Id",
                               arg);
       rows.Next();) {
    list.push_back({rows.Int(0), rows.Int(1)});
  }
  return list;
}

void DevelopSchools(Session& session) {
  Store& store = session.Db();
  session.ui.ShowProgress("Training Players");
  TrainCPUPlayers(store);
  std::vector<std::string> schools;
  for (Rows rows = store.Query("SELECT SchoolName FROM Team ORDER BY rowid"); rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  for (size_t i = 0; i < schools.size(); ++i) {
    const std::array<int, 6> value = CoachesDevelopment(store, schools[i]);
    for (const Trainee& t : Trainees(store, "Team = ?", schools[i])) {
      Player p;
      if (!LoadPlayer(store, t.id, p)) continue;
      const int position =
          p.PlayerPosition >= kPG && p.PlayerPosition <= kC ? p.PlayerPosition : kC;
      if (DevelopPlayer(session, p, t.redshirt, value[position], 0)) UpdatePlayerRow(store, p);
    }
    session.ui.SetProgress(static_cast<int>(100 * (i + 1) / schools.size()));
  }
}

// The first name: the name up to its first blank.
std::string FirstName(const std::string& name) {
  return name.substr(0, name.find(' '));
}

void SetStage(Session& session, const char* stage) {
  session.Db().Exec("UPDATE Config SET Stage = ? WHERE IdConfig = 0", stage);
  session.config.Stage = stage;
}

void RemoveFreeAgents(Store& store) {
  for (const char* table : {"Scout", "Trainer", "Coach"}) {
    store.Exec(std::string("DELETE FROM ") + table + " WHERE Team LIKE 'Looking%'");
  }
  store.Exec("DELETE FROM NonConfSchedule WHERE GameNo >= 0");
}

void AddCoachHistoryRow(Session& session) {
  Store& store = session.Db();
  const auto last = store.ScalarInt("SELECT MAX(Season) FROM CoachHistory");
  store.Exec("INSERT INTO CoachHistory (Season, Year, Team) VALUES (?, ?, ?)", last ? *last + 1 : 1,
             session.config.CurrYear, HumanSchool(store));
}

void AddStaffCandidates(Session& session) {
  session.ui.ShowProgress("Adding New Scouts");
  CreateScouts(session, kScoutPosts);
  session.ui.ShowProgress("Adding New Coaches");
  CreateCoaches(session, kCoachPosts);
  session.ui.ShowProgress("Adding New Trainers");
  CreateTrainers(session, kTrainerPosts);
}

void RedrawBackgroundTeams(Session& session) {
  session.ui.ShowProgress("Creating Background Teams");
  session.Db().Exec("DELETE FROM ScrubTeam WHERE SchoolName IS NOT NULL");
  PlayerBatch batch = PlayerBatch::Begin(session);
  batch.ids.NextId = WrappedPlayerId(batch.ids.NextId);
  CreateScrubTeams(session);
  RefreshScrubRosters(session, batch, DevelopBackgroundPlayer);
  batch.Save(session);
}

void RebuildTeamRows(Session& session) {
  session.ui.ShowProgress("Updating Rosters");
  Store& store = session.Db();
  store.Exec("DELETE FROM TeamStats WHERE SchoolName IS NOT NULL");
  // Design decision: last year's ranking rows give way to the new year's,
  // so that every school holds one.
  store.Exec("DELETE FROM Ranking WHERE SchoolName IS NOT NULL");
  store.Exec("INSERT INTO TeamStats (SchoolName) SELECT SchoolName FROM Team ORDER BY rowid");
  store.Exec("INSERT INTO Ranking (SchoolName) SELECT SchoolName FROM Team ORDER BY rowid");
  ScrubTeamRatings(session);
  store.Exec("INSERT INTO Ranking (SchoolName) SELECT SchoolName FROM ScrubTeam ORDER BY rowid");
}

void RebuildSchedules(Session& session) {
  session.ui.ShowProgress("Setting up Schedules");
  Store& store = session.Db();
  for (const char* table : {"NCTTourney", "ACTTourney", "ConfTourney", "PreSeasonTourney"}) {
    store.Exec(std::string("DELETE FROM ") + table + " WHERE Id > 0");
  }
  for (int league = 1; league <= kLeagues; ++league) {
    store.Exec("DELETE FROM League" + std::to_string(league) + "Schedule WHERE GameNo > 0");
  }
  store.Exec("DELETE FROM CRIRank WHERE SchoolName IS NOT NULL");
  BuildLeagueSchedules(session);
}

void RebuildLineups(Session& session) {
  session.ui.ShowProgress("Updating Team Lineups");
  MenuGate(session);
  session.Db().Exec("UPDATE Team SET PG1 = 0 WHERE SchoolName IS NOT NULL");
  SetCPURoster(session);
  if (!session.humanSchool.empty()) SetTeamLineup(session, session.humanSchool, 0);
}

}  // namespace

void DefaultUserTraining(Session& session) {
  Store& store = session.Db();
  for (const Trainee& t : Trainees(store, "Team = ?", HumanSchool(store))) {
    if (!LoadTrainingRow(store, t.id)) SaveTrainingRow(store, t.id, DefaultTrainingRow());
  }
}

void DevelopJuniorCollegeProspects(Session& session) {
  Store& store = session.Db();
  for (const Trainee& t : Trainees(store, "PlayerYear = ?", "JCRecruit")) {
    Player p;
    if (!LoadPlayer(store, t.id, p)) continue;
    if (!DevelopPlayer(session, p, t.redshirt, kJuniorCollegeDevelopment, 0)) continue;
    // Design decision: the extra study keeps Intelligence within 100, as
    // every trained rating is.
    p.Intelligence = std::min(100, p.Intelligence + Int(session.rng.Rnd() * 3 + 4));
    UpdatePlayerRow(store, p);
    store.Exec("UPDATE Recruit SET ScoutingReport = ? WHERE Id = ?",
               FirstName(p.Name) + " is coming back this season as a JC Recruit.", p.Id);
  }
}

int WrappedPlayerId(int nextId) {
  return nextId > kIdWrap ? 1 : nextId;
}

void RunTraining(Session& session, CareerSteps& career) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  DefaultUserTraining(session);
  DevelopSchools(session);
  DevelopJuniorCollegeProspects(session);
  store.Exec("UPDATE Player SET Redshirt = 2, Inactive = 0 WHERE Redshirt = 1");
  SetStage(session, kStagePostTraining);
  SignedRecruitsToPlayers(session);
  RemoveFreeAgents(store);
  AddCoachHistoryRow(session);
  AddStaffCandidates(session);
  RedrawBackgroundTeams(session);
  RebuildTeamRows(session);
  RebuildSchedules(session);
  RebuildLineups(session);
  career.DevelopStaff(session);
  FinalOffseasonTasks(session);
  tx.Commit();
  session.ui.HideProgress();
  LoadSeasonStats(session);
  MenuGate(session);
}

bool TrainPlayers(Session& session, CareerSteps& career) {
  if (!session.ui.Ask("Once you begin training players you will no longer have the ability to "
                      "change the offseason training schedule. Do you wish to proceed?")) {
    return false;
  }
  RunTraining(session, career);
  return true;
}

}  // namespace courtmere
