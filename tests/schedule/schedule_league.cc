#include "schedule/schedule_league.h"

#include "store/blank_store.h"

namespace courtmere::testing {
namespace {

constexpr int kBackgroundTeams = 110;

// Team ratings that follow prestige and differ between schools of the same
// prestige, so the tournament fields are the strongest schools.
constexpr const char* kRating = "Prestige * 8 + length(SchoolName) % 7";

}  // namespace

ScheduleLeague::ScheduleLeague(const std::vector<std::string>& chosen, uint64_t seed) {
  session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(seed), ui_);
  BuildBlankStore(session_->folder.Store());
  session_->store = std::make_unique<Store>(session_->folder.Store());
  Store::Transaction tx(store());
  CopyLeagues(chosen);
  CopyTeams(chosen);
  DrawBackgroundField();
  tx.Commit();
}

void ScheduleLeague::CopyLeagues(const std::vector<std::string>& chosen) {
  store().Exec(
      "INSERT INTO League (Id, Conference, SchedType, Challenge, Week, Day) "
      "SELECT Id, Conference, SchedType, Challenge, Week, Day FROM LeagueSetup WHERE Id < 7");
  int id = 7;
  for (const std::string& conference : chosen) {
    store().Exec(
        "INSERT INTO League (Id, Conference, SchedType) "
        "SELECT ?, Conference, SchedType FROM LeagueSetup WHERE Conference = ?",
        id++, conference);
  }
}

void ScheduleLeague::CopyTeams(const std::vector<std::string>& chosen) {
  const std::string columns =
      "SchoolName, State, Location, Area, Population, Colors, ArenaCapacity, Conference, Region, "
      "Division, SchedGroup";
  const std::string select = "SELECT " + columns + ", Prestige, Prestige, 'Computer', " + kRating;
  const std::string insert =
      "INSERT INTO Team (" + columns + ", InitialPrestige, Prestige, Owner, TeamRating) ";
  store().Exec(insert + select + " FROM TeamSetup");
  for (const std::string& conference : chosen) {
    store().Exec(insert + select + " FROM LowLeagueSetup WHERE Conference = ?", conference);
  }
}

// One school of every other low conference, its champion, then the
// strongest of the rest up to 110.
void ScheduleLeague::DrawBackgroundField() {
  const std::string others =
      "FROM LowLeagueSetup WHERE Conference NOT IN (SELECT Conference FROM League)";
  store().Exec(
      "INSERT INTO ScrubTeam (SchoolName, Conference, Region, InitialPrestige, Prestige, Winner, "
      "TeamRating) SELECT MIN(SchoolName), Conference, 'East', 30, 30, 1, 240 " +
      others + " GROUP BY Conference");
  store().Exec(
      "UPDATE ScrubTeam SET Region = s.Region, InitialPrestige = s.Prestige, "
      "Prestige = s.Prestige, TeamRating = s.Prestige * 8 + length(s.SchoolName) % 7 "
      "FROM LowLeagueSetup s WHERE s.SchoolName = ScrubTeam.SchoolName");
  const int have = static_cast<int>(store().RowCount("ScrubTeam"));
  store().Exec(
      "INSERT INTO ScrubTeam (SchoolName, Conference, Region, InitialPrestige, Prestige, "
      "TeamRating) SELECT SchoolName, Conference, Region, Prestige, Prestige, " +
          std::string(kRating) + " " + others +
          " AND SchoolName NOT IN (SELECT SchoolName FROM ScrubTeam) "
          "ORDER BY Prestige DESC, SchoolName LIMIT ?",
      kBackgroundTeams - have);
}

void ScheduleLeague::SetUser(const std::string& school) {
  store().Exec("DELETE FROM HeadCoach");
  store().Exec("INSERT INTO HeadCoach (Name, Team) VALUES ('Test Coach', ?)", school);
  store().Exec("UPDATE Team SET Owner = 'Computer'");
  store().Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = ?", school);
}

std::vector<ScheduleRow> ScheduleLeague::AllRows() {
  std::vector<ScheduleRow> all;
  for (int id = 0; id <= 9; ++id) {
    const std::string table =
        id == 0 ? "NonConfSchedule" : "League" + std::to_string(id) + "Schedule";
    for (Rows rows = store().Query(
             "SELECT GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeConf, AwayConf, GameType, "
             "HomeScore, AwayScore FROM " +
             table);
         rows.Next();) {
      all.push_back({table, rows.Int(0), rows.Int(1), rows.Text(2), rows.Text(3), rows.Text(4),
                     rows.Text(5), rows.Text(6), rows.Text(7), rows.Int(8), rows.Int(9)});
    }
  }
  std::sort(all.begin(), all.end(),
            [](const ScheduleRow& a, const ScheduleRow& b) { return a.GameNo < b.GameNo; });
  return all;
}

std::vector<ScheduleRow> ScheduleLeague::NonConfRows() {
  std::vector<ScheduleRow> rows = AllRows();
  std::erase_if(rows, [](const ScheduleRow& r) { return r.table != "NonConfSchedule"; });
  return rows;
}

std::string ScheduleLeague::ConferenceOf(const std::string& school) {
  return store()
      .ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", school)
      .value_or("");
}

bool ScheduleLeague::IsBackground(const std::string& school) {
  return store().ScalarInt("SELECT 1 FROM ScrubTeam WHERE SchoolName = ?", school).has_value();
}

}  // namespace courtmere::testing
