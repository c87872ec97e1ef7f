#include "league/setup_teams.h"

#include <string>
#include <vector>

#include "league/final_offseason_tasks.h"
#include "league/scrub_teams.h"
#include "league/status.h"
#include "league/team_ratings.h"
#include "people/player_creation.h"
#include "people/staff_creation.h"
#include "schedule/league_schedule.h"
#include "store/record_books.h"
#include "store/session.h"

namespace courtmere {

namespace {

void CreateStaff(Session& session) {
  // Design decision: until its first rating a school's current prestige is
  // its starting prestige, so the staff of a new dynasty is drawn by each
  // school's standing (the prestige options have had their say by now).
  session.Db().Exec("UPDATE Team SET Prestige = InitialPrestige");
  ShowStatus(session, "Creating Scouts");
  CreateScouts(session, 0);
  ShowStatus(session, "Creating Coaches");
  CreateCoaches(session, 0);
  ShowStatus(session, "Creating Trainers");
  CreateTrainers(session, 0);
}

struct RosterSeed {
  std::string SchoolName;
  std::string Region;
  int InitialPrestige;
};

void CreatePlayersOfAllTeams(Session& session) {
  ShowStatus(session, "Creating Players");
  Store& store = session.Db();
  CreateRecords(store);
  std::vector<RosterSeed> teams;
  for (Rows rows =
           store.Query("SELECT SchoolName, Region, InitialPrestige FROM Team ORDER BY rowid");
       rows.Next();) {
    teams.push_back({rows.Text(0), rows.Text(1), rows.Int(2)});
  }
  PlayerBatch batch = PlayerBatch::Begin(session);
  for (size_t i = 0; i < teams.size(); ++i) {
    CreateTeamRoster(session, batch, teams[i].SchoolName, teams[i].Region,
                     teams[i].InitialPrestige);
    session.ui.SetProgress(static_cast<int>(100 * (i + 1) / teams.size()));
  }
  batch.Save(session);
}

void CreateBackgroundTeams(Session& session) {
  ShowStatus(session, "Creating Background Teams");
  session.Db().Exec("DELETE FROM ScrubTeam");
  PlayerBatch batch = PlayerBatch::Begin(session);
  CreateScrubTeams(session);
  RefreshScrubRosters(session, batch, nullptr);
  batch.Save(session);
}

void MarkUsersSchool(Session& session, const std::string& school) {
  Store& store = session.Db();
  store.Exec("UPDATE Config SET Stage = ? WHERE IdConfig = 0", kStagePostTraining);
  session.config.Stage = kStagePostTraining;
  store.Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = ?", school);
}

void FinalizeSeasonSetup(Session& session) {
  ShowStatus(session, "Finalizing Season Setup");
  Store& store = session.Db();
  store.Exec("DELETE FROM TeamStats");
  TeamRatings(session);
  store.Exec("INSERT INTO TeamStats (SchoolName) SELECT SchoolName FROM Team ORDER BY rowid");
  store.Exec("INSERT INTO Ranking (SchoolName) SELECT SchoolName FROM Team ORDER BY rowid");
  ScrubTeamRatings(session);
  store.Exec("INSERT INTO Ranking (SchoolName) SELECT SchoolName FROM ScrubTeam ORDER BY rowid");
  BuildLeagueSchedules(session);
}

}  // namespace

void SetupTeams(Session& session, const std::string& school) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  CreateStaff(session);
  CreatePlayersOfAllTeams(session);
  CreateBackgroundTeams(session);
  MarkUsersSchool(session, school);
  FinalizeSeasonSetup(session);
  store.Exec("INSERT INTO CoachHistory (Season, Year, Team) VALUES (1, ?, ?)",
             LoadConfig(store).CurrYear, school);
  FinalOffseasonTasks(session);
  tx.Commit();
  session.config = LoadConfig(store);
}

}  // namespace courtmere
