#include "cpu/computer_roster.h"

#include <SQLiteCpp/Exception.h>

#include <optional>
#include <string>
#include <vector>

#include "cpu/lineup_builder.h"
#include "people/player.h"
#include "store/session.h"

namespace courtmere {

namespace {

// The two kinds of team: first-division schools and background teams.
struct RosterTables {
  const char* team;
  const char* player;
  // The extra conditions on a player fit to play.
  const char* fit;
};

constexpr RosterTables kSchool = {"Team", "Player",
                                  " AND Health = 'Good' AND Suspended = 0 AND Redshirt <> 1"};
constexpr RosterTables kBackground = {"ScrubTeam", "ScrubPlayer", " AND Health = 'Good'"};

std::vector<LineupRow> FitPlayers(Store& store, const RosterTables& t, const std::string& school,
                                  bool byScoutsView) {
  const std::string rating = byScoutsView ? "ScoutOverall" : "Overall";
  const std::string sql = "SELECT Id, PlayerPosition, " + rating + ", Reach FROM " + t.player +
                          " WHERE Team = ?" + t.fit + " ORDER BY Overall DESC, Id ASC";
  std::vector<LineupRow> rows;
  for (Rows r = store.Query(sql, school); r.Next();) {
    rows.push_back({r.Int(0), r.Int(1), r.Double(2), r.Int(3)});
  }
  return rows;
}

void WriteChart(Store& store, const RosterTables& t, const std::string& school, const LineupWork& w,
                int inactive) {
  const auto& s = w.starter;
  const auto& b = w.bench;
  store.Exec(std::string("UPDATE ") + t.team +
                 " SET PG1 = ?, PG2 = ?, SG1 = ?, SG2 = ?, SF1 = ?, SF2 = ?, PF1 = ?, PF2 = ?, "
                 "C1 = ?, C2 = ?, PG3 = ?, SG3 = ?, SF3 = ?, PF3 = ?, C3 = ?, Inactive = ? "
                 "WHERE SchoolName = ?",
             s[1], b[1], s[2], b[2], s[3], b[3], s[4], b[4], s[5], b[5], b[6], b[7], b[8], b[9],
             b[10], inactive, school);
  store.Exec(std::string("UPDATE ") + t.player + " SET Inactive = 1 WHERE Id = ?", inactive);
}

// Builds and writes the chart of one team from its players fit to play. A
// team with none keeps its chart; only the inactive mark was cleared.
void BuildChart(Session& session, const RosterTables& t, const std::string& school,
                bool byScoutsView, int inactive) {
  LineupWork work(FitPlayers(session.Db(), t, school, byScoutsView));
  if (work.rows.empty()) return;
  PickStarters(work);
  PickBench(work);
  WriteChart(session.Db(), t, school, work, inactive);
}

std::optional<int> FirstId(Store& store, const std::string& sql, const std::string& school) {
  auto id = store.ScalarInt(sql, school);
  if (!id) return std::nullopt;
  return static_cast<int>(*id);
}

std::vector<std::string> Column(Store& store, const std::string& sql) {
  std::vector<std::string> values;
  for (Rows rows = store.Query(sql); rows.Next();) values.push_back(rows.Text(0));
  return values;
}

std::string ErrorCode(const std::exception& e) {
  if (const auto* sql = dynamic_cast<const SQLite::Exception*>(&e)) {
    return std::to_string(sql->getErrorCode());
  }
  return e.what();
}

}  // namespace

int PickInactive(Session& session, const std::string& school) {
  Store& store = session.Db();
  store.Exec("UPDATE Player SET Inactive = 0 WHERE Team = ?", school);
  for (const char* sql :
       {"SELECT Id FROM Player WHERE Team = ? AND Redshirt = 1 ORDER BY Id",
        "SELECT Id FROM Player WHERE Team = ? AND (Suspended = 1 OR Health <> 'Good') "
        "ORDER BY Overall ASC, Id ASC",
        "SELECT Id FROM Player WHERE Team = ? ORDER BY Overall ASC, Id ASC"}) {
    if (auto id = FirstId(store, sql, school)) return *id;
  }
  return 0;
}

int PickScrubInactive(Session& session, const std::string& school) {
  Store& store = session.Db();
  store.Exec("UPDATE ScrubPlayer SET Inactive = 0 WHERE Team = ?", school);
  for (const char* sql :
       {"SELECT Id FROM ScrubPlayer WHERE Team = ? AND Health <> 'Good' ORDER BY Overall ASC, Id",
        "SELECT Id FROM ScrubPlayer WHERE Team = ? ORDER BY Overall ASC, Id ASC"}) {
    if (auto id = FirstId(store, sql, school)) return *id;
  }
  return 0;
}

void SetTeamLineup(Session& session, const std::string& school, int onlyIfMissing) {
  int pg1 = 0;
  bool byScoutsView = false;
  {
    Rows row = session.Db().Query("SELECT PG1, Owner FROM Team WHERE SchoolName = ?", school);
    if (!row.Next()) return;
    pg1 = row.Int(0);
    // The user's team is judged by what his scouts say.
    byScoutsView = row.Text(1) == "Human";
  }
  if (onlyIfMissing == 1 && pg1 != 0) return;
  const int inactive = PickInactive(session, school);
  BuildChart(session, kSchool, school, byScoutsView, inactive);
}

void SetScrubLineup(Session& session, const std::string& school) {
  const auto pg1 = session.Db().ScalarInt("SELECT PG1 FROM ScrubTeam WHERE SchoolName = ?", school);
  if (!pg1 || *pg1 != 0) return;
  const int inactive = PickScrubInactive(session, school);
  BuildChart(session, kBackground, school, false, inactive);
}

void SetCPURoster(Session& session) {
  SetCPURoster(session, false);
}

void SetCPURoster(Session& session, bool autoSimRunning) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  try {
    std::vector<std::string> schools;
    for (Rows rows = store.Query("SELECT SchoolName, Owner FROM Team ORDER BY rowid");
         rows.Next();) {
      if (rows.Text(1) == "Human" && !autoSimRunning) continue;
      schools.push_back(rows.Text(0));
    }
    for (const std::string& school : schools) {
      SetCoachRoles(session, school);
      SetTeamLineup(session, school, 1);
    }
    const auto background = Column(store, "SELECT SchoolName FROM ScrubTeam ORDER BY rowid");
    for (std::size_t i = 0; i < background.size(); ++i) {
      SetScrubLineup(session, background[i]);
      session.ui.SetProgress(static_cast<int>((i + 1) * 100 / background.size()));
    }
    tx.Commit();
  } catch (const std::exception& e) {
    // What was done before the error stands; the pass stops here.
    tx.Commit();
    session.ui.Message("The error occured in SetCPURoster. The error code is " + ErrorCode(e));
  }
}

}  // namespace courtmere
