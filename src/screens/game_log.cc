#include "screens/game_log.h"

#include "store/store.h"

namespace courtmere {
namespace {

// A list that has ended reads as week 100.
constexpr int kEndedWeek = 100;

struct ScheduleRow {
  int GameNo = 0;
  int Week = 0;
  std::string GameDay;
  std::string HomeTeam;
  std::string AwayTeam;
  int HomeScore = 0;
  int AwayScore = 0;
};

// Table names can't be bound; they come from the store's League ids.
std::vector<ScheduleRow> TeamGames(Store& store, const std::string& table,
                                   const std::string& school) {
  std::vector<ScheduleRow> games;
  for (Rows r = store.Query("SELECT GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeScore, "
                            "AwayScore FROM " +
                                table +
                                " WHERE HomeTeam = ? OR AwayTeam = ? ORDER BY Week ASC, "
                                "GameDay DESC",
                            school, school);
       r.Next();) {
    games.push_back({r.Int(0), r.Int(1), r.Text(2), r.Text(3), r.Text(4), r.Int(5), r.Int(6)});
  }
  return games;
}

// A background school has no TeamStats row; its record stands on its own row.
std::string Record(Store& store, const std::string& school) {
  Rows r = store.Query("SELECT TotalWins, TotalLosses FROM TeamStats WHERE SchoolName = ?", school);
  if (r.Next()) return std::to_string(r.Int(0)) + "-" + std::to_string(r.Int(1));
  Rows scrub = store.Query("SELECT Wins, Losses FROM ScrubTeam WHERE SchoolName = ?", school);
  if (scrub.Next()) return std::to_string(scrub.Int(0)) + "-" + std::to_string(scrub.Int(1));
  return "";
}

GameLogRow RowFor(Store& store, const ScheduleRow& game, const std::string& school) {
  const bool home = game.HomeTeam == school;
  GameLogRow row;
  row.GameNo = game.GameNo;
  row.Week = game.Week;
  row.GameDay = game.GameDay;
  row.Team = home ? game.AwayTeam : game.HomeTeam;
  row.Record = Record(store, row.Team);
  if (game.HomeScore != 0) {
    const int own = home ? game.HomeScore : game.AwayScore;
    const int their = home ? game.AwayScore : game.HomeScore;
    row.Result = own > their ? "Win" : "Loss";
    row.Score = std::to_string(own) + "-" + std::to_string(their);
  }
  return row;
}

std::optional<std::string> LogOf(Store& store, const std::string& table, int gameNo) {
  Rows r = store.Query("SELECT GameLog FROM " + table + " WHERE GameNo = ?", gameNo);
  if (!r.Next()) return std::nullopt;
  return r.Text(0);
}

}  // namespace

std::vector<std::string> GameLogConferences(Store& store) {
  std::vector<std::string> conferences;
  for (Rows r = store.Query("SELECT Conference FROM League ORDER BY Conference ASC"); r.Next();) {
    conferences.push_back(r.Text(0));
  }
  return conferences;
}

std::vector<std::string> ConferenceSchools(Store& store, const std::string& conference) {
  std::vector<std::string> schools;
  for (Rows r = store.Query("SELECT SchoolName FROM Team WHERE Conference = ? ORDER BY rowid",
                            conference);
       r.Next();) {
    schools.push_back(r.Text(0));
  }
  return schools;
}

std::string ConferenceScheduleTable(Store& store, const std::string& conference) {
  const auto id = store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", conference);
  return id ? "League" + std::to_string(*id) + "Schedule" : "";
}

std::vector<GameLogRow> TeamGameLog(Store& store, const std::string& school) {
  const std::string conference =
      store.ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", school).value_or("");
  const std::vector<ScheduleRow> other = TeamGames(store, "NonConfSchedule", school);
  const std::string table = ConferenceScheduleTable(store, conference);
  const std::vector<ScheduleRow> league =
      table.empty() ? std::vector<ScheduleRow>{} : TeamGames(store, table, school);

  std::vector<GameLogRow> rows;
  size_t i = 0, j = 0;
  while (i < other.size() || j < league.size()) {
    const int otherWeek = i < other.size() ? other[i].Week : kEndedWeek;
    const int leagueWeek = j < league.size() ? league[j].Week : kEndedWeek;
    const bool takeOther =
        i < other.size() &&
        (otherWeek < leagueWeek || (otherWeek == leagueWeek && other[i].GameDay == "Thursday"));
    rows.push_back(RowFor(store, takeOther ? other[i++] : league[j++], school));
  }
  return rows;
}

std::optional<std::filesystem::path> GameLogFile(Store& store, int gameNo,
                                                 const std::string& conference) {
  std::optional<std::string> log = LogOf(store, "NonConfSchedule", gameNo);
  if (!log) {
    const std::string table = ConferenceScheduleTable(store, conference);
    if (!table.empty()) log = LogOf(store, table, gameNo);
  }
  if (!log || log->empty() || *log == "none") return std::nullopt;
  return std::filesystem::path(*log);
}

}  // namespace courtmere
