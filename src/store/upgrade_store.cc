#include "store/upgrade_store.h"

#include <string>
#include <string_view>

#include "store/embedded_data.h"
#include "store/record_books.h"
#include "store/session.h"
#include "store/store_error.h"

namespace courtmere {
namespace {

// Seed rows that older stores hold wrong. The North goes first: 'OK' is named
// in both statements and must end in the South.
void FixSeedRows(Store& store) {
  store.Exec("UPDATE LeagueSetup SET SchedType = ? WHERE Id = ?", "12C", 4);
  store.Exec(
      "UPDATE TeamSetup SET Division = ? WHERE Conference = ? AND (Area = ? OR Area = ? OR "
      "Area = ? OR Area = ? OR Area = ?)",
      "North", "Big 12", "NEMO", "KS", "CO", "OK", "IA");
  store.Exec("UPDATE TeamSetup SET Division = ? WHERE Conference = ? AND (Area = ? OR Area = ?)",
             "South", "Big 12", "OK", "TX");
}

// Table and column names can't be bound; every one here is the program's own.
void DropColumnIfPresent(Store& store, std::string_view table, std::string_view column) {
  if (!store.ColumnExists(table, column)) return;
  store.ExecScript("ALTER TABLE " + std::string(table) + " DROP COLUMN " + std::string(column));
}

void AddColumnIfMissing(Store& store, std::string_view table, std::string_view column,
                        std::string_view type) {
  if (store.ColumnExists(table, column)) return;
  store.ExecScript("ALTER TABLE " + std::string(table) + " ADD COLUMN " + std::string(column) +
                   " " + std::string(type));
}

// The statement of the current schema that begins with `head`, so that an
// upgraded store gets exactly the tables and indexes of a new one.
std::string SchemaStatement(std::string_view head) {
  const std::string_view schema = embedded::kSchemaSql;
  const size_t start = schema.find(head);
  const size_t end = schema.find(';', start);
  if (start == std::string_view::npos || end == std::string_view::npos) {
    throw StoreError("The schema has no statement " + std::string(head));
  }
  return std::string(schema.substr(start, end - start + 1));
}

void ReplaceRecordColumns(Store& store) {
  for (const char* column :
       {"FGPercentSeason", "FGPercentSeasonPlayer", "FGPercentSeasonTeam", "PGPercentSeasonYear",
        "FGPercentCareer", "FGPercentCareerPlayer", "FGPercentCareerTeam", "PGPercentCareerYear",
        "FTPercentSeason", "FTPercentSeasonPlayer", "FTPercentSeasonTeam", "PTPercentSeasonYear",
        "FTPercentCareer", "FTPercentCareerPlayer", "FTPercentCareerTeam", "PTPercentCareerYear",
        "TOPGSeason",      "TOPGSeasonPlayer",      "TOPGSeasonTeam",      "TOPGSeasonYear"}) {
    DropColumnIfPresent(store, "Records", column);
  }
  // Added in the order the books are read by position: FG season, FG career,
  // FT season, FT career, each value, holder, team and year.
  for (const char* stat : {"FGPercent", "FTPercent"}) {
    for (const char* span : {"Season", "Career"}) {
      const std::string group = std::string(stat) + span;
      AddColumnIfMissing(store, "Records", group, "REAL");
      AddColumnIfMissing(store, "Records", group + "Player", "TEXT");
      AddColumnIfMissing(store, "Records", group + "Team", "TEXT");
      AddColumnIfMissing(store, "Records", group + "Year", "INTEGER");
    }
  }
}

// The history row of the career so far, from the user's HeadCoach row.
// Design decision: it takes the current year and season 1, the coach's
// career wins and losses, "Yes" for ConfChamps when he has won a conference,
// and no conference record, as the old layout kept none.
void FillFirstCoachHistory(Store& store) {
  if (store.RowCount("CoachHistory") > 0) return;
  Rows coach = store.Query("SELECT Team, Wins, Losses, ConfChamps FROM HeadCoach ORDER BY Id");
  if (!coach.Next()) return;
  const int year = static_cast<int>(
      store.ScalarInt("SELECT CurrYear FROM Config WHERE IdConfig = 0").value_or(2001));
  store.Append("CoachHistory", {{"Season", int64_t{1}},
                                {"Year", int64_t{year}},
                                {"Team", coach.Text(0)},
                                {"Wins", coach.Int64(1)},
                                {"Losses", coach.Int64(2)},
                                {"ConfWins", int64_t{0}},
                                {"ConfLosses", int64_t{0}},
                                {"ConfChamps", coach.Int(3) > 0 ? "Yes" : "No"},
                                {"ACTRecord", "NA"},
                                {"NCTRecord", "NA"},
                                {"Summary", ""}});
}

void AddHistoryTables(Store& store) {
  if (!store.TableExists("TrainPlayer")) {
    store.ExecScript(SchemaStatement("CREATE TABLE TrainPlayer ("));
    store.ExecScript(SchemaStatement("CREATE INDEX PlayerIndex ON TrainPlayer"));
  }
  if (!store.TableExists("CoachHistory")) {
    store.ExecScript(SchemaStatement("CREATE TABLE CoachHistory ("));
    store.ExecScript(SchemaStatement("CREATE INDEX HistoryIndex ON CoachHistory"));
  }
  FillFirstCoachHistory(store);
}

void AddNewColumns(Store& store) {
  AddColumnIfMissing(store, "Player", "ShootingGrade", "TEXT");
  for (const char* column : {"Attribute1", "Attribute2", "Attribute3", "PrePotentialGrade"}) {
    DropColumnIfPresent(store, "Development", column);
  }
  AddColumnIfMissing(store, "Development", "PreShootingGrade", "TEXT");
  AddColumnIfMissing(store, "Development", "PreAthleticGrade", "TEXT");
  for (const char* column : {"ACTFinalFour", "ACTWinner", "ACTFinalFourApps"}) {
    AddColumnIfMissing(store, "Team", column, "INTEGER DEFAULT 0");
  }
  AddColumnIfMissing(store, "Team", "Press", "TEXT");
  for (const char* column : {"ACTWins", "ACTApps", "ACTLosses", "ACTFinalFour", "ACTChamps"}) {
    AddColumnIfMissing(store, "HeadCoach", column, "INTEGER DEFAULT 0");
  }
  for (const char* column : {"ACTFinalFour", "ACTWinner"}) {
    AddColumnIfMissing(store, "ScrubTeam", column, "INTEGER DEFAULT 0");
  }
  AddColumnIfMissing(store, "ScrubTeam", "Press", "TEXT");
  store.Exec("UPDATE Team SET Press = ? WHERE SchoolName IS NOT NULL", "None");
  store.Exec("UPDATE ScrubTeam SET Press = ? WHERE SchoolName IS NOT NULL", "None");
}

void UpgradeOldLayout(Session& session, const PlayerGrader& gradeAllPlayers) {
  Store& store = session.Db();
  session.ui.ShowProgress("Updating Save Game");
  Store::Transaction tx(store);
  ReplaceRecordColumns(store);
  AddHistoryTables(store);
  AddNewColumns(store);
  gradeAllPlayers(session);
  CreateRecords(store);
  tx.Commit();
  session.ui.HideProgress();
}

// Saves made before the user could recruit declared RecruitDecision's
// WeekDecision an integer; the strict table would then refuse the action's
// name. Nothing wrote that table before, so its rows (if any) are carried
// over with no decision for the week.
void RetypeWeekDecision(Store& store) {
  const auto type = store.ScalarText(
      "SELECT type FROM pragma_table_info('RecruitDecision') WHERE name = 'WeekDecision'");
  if (!type || *type != "INTEGER") return;
  Store::Transaction tx(store);
  store.ExecScript("ALTER TABLE RecruitDecision RENAME TO RecruitDecisionOld");
  store.ExecScript(SchemaStatement("CREATE TABLE RecruitDecision ("));
  store.ExecScript(
      "INSERT INTO RecruitDecision (Id, Team, PlayerID, RecruitNo, Call, Assistant, Visit, "
      "CampusVisit, WeekBid, RecruitPoints, TopBid, Scholarship) "
      "SELECT Id, Team, PlayerID, RecruitNo, Call, Assistant, Visit, CampusVisit, WeekBid, "
      "RecruitPoints, TopBid, Scholarship FROM RecruitDecisionOld; "
      "DROP TABLE RecruitDecisionOld");
  tx.Commit();
}

}  // namespace

bool HasOldLayout(Store& store) {
  return store.ColumnExists("Records", "PGPercentSeasonYear");
}

void UpgradeStore(Session& session) {
  UpgradeStore(session, nullptr);
}

void UpgradeStore(Session& session, const PlayerGrader& gradeAllPlayers) {
  Store& store = session.Db();
  FixSeedRows(store);
  // Saves made before the inbox was kept in the store.
  if (!store.TableExists("InboxMessage")) {
    store.ExecScript(SchemaStatement("CREATE TABLE InboxMessage ("));
  }
  // Saves made before the ranks were kept week by week.
  if (!store.TableExists("RankHistory")) {
    store.ExecScript(SchemaStatement("CREATE TABLE RankHistory ("));
  }
  RetypeWeekDecision(store);
  // Saves made before a change of job was kept for the year.
  AddColumnIfMissing(store, "HeadCoach", "JobYear", "INTEGER DEFAULT 0");
  // Saves made before careers kept fouls and plus-minus, before a year's
  // line kept the player's ratings, and before a school's seasons were kept
  // year by year.
  AddColumnIfMissing(store, "CareerPlayerStats", "Fouls", "INTEGER DEFAULT 0");
  AddColumnIfMissing(store, "CareerPlayerStats", "PlusMinus", "INTEGER DEFAULT 0");
  AddColumnIfMissing(store, "PlayerYearStats", "Overall", "REAL DEFAULT 0");
  for (const char* rating : {"Jumpshot", "InScoring", "Handling", "Passing", "PerrDefense"}) {
    AddColumnIfMissing(store, "PlayerYearStats", rating, "INTEGER DEFAULT 0");
  }
  if (!store.TableExists("TeamHistory")) {
    store.ExecScript(SchemaStatement("CREATE TABLE TeamHistory ("));
  }
  if (!HasOldLayout(store)) return;
  if (!gradeAllPlayers) {
    throw StoreError("A store of the old layout needs its players graded anew");
  }
  UpgradeOldLayout(session, gradeAllPlayers);
}

}  // namespace courtmere
