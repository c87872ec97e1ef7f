#include "screens/team_schedule.h"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>

#include "league/seeded_name.h"
#include "schedule/calendar_slots.h"
#include "store/store.h"

namespace courtmere {
namespace {

bool HasHome(std::string_view gameType) {
  return gameType == "Conference" || gameType == "NonConference";
}

// A row of the NCT's first weekend names a school with its seed, "<seed>.
// <school>": such rows are found by their ending and checked once the seed
// is cut.
void ReadTable(Store& store, const std::string& table, const std::string& school,
               std::vector<ScheduleGame>& games) {
  Rows rows = store.Query(
      "SELECT GameNo, Week, GameDay, GameType, HomeTeam, AwayTeam, HomeScore, AwayScore, "
      "BoxScore FROM " +
          table +
          " WHERE HomeTeam = ?1 OR AwayTeam = ?1 OR HomeTeam LIKE '%. ' || ?1 "
          "OR AwayTeam LIKE '%. ' || ?1",
      school);
  while (rows.Next()) {
    const std::string home = SeededName::Parse(rows.TextView(4)).school;
    const std::string away = SeededName::Parse(rows.TextView(5)).school;
    if (home != school && away != school) continue;
    ScheduleGame g;
    g.GameNo = rows.Int(0);
    g.Week = rows.Int(1);
    g.Day = rows.Text(2);
    g.GameType = rows.Text(3);
    const bool atHome = home == school;
    g.Site = !HasHome(g.GameType) ? "Neutral" : atHome ? "Home" : "Away";
    g.Opponent = atHome ? away : home;
    const int homeScore = rows.Int(6);
    const int awayScore = rows.Int(7);
    g.Played = homeScore != 0;
    g.Score = atHome ? homeScore : awayScore;
    g.OpponentScore = atHome ? awayScore : homeScore;
    g.BoxScore = rows.Text(8);
    games.push_back(std::move(g));
  }
}

}  // namespace

std::vector<ScheduleGame> TeamSchedule(Store& store, const std::string& school) {
  std::vector<ScheduleGame> games;
  std::vector<std::string> tables;
  for (Rows rows = store.Query("SELECT Id FROM League ORDER BY Id"); rows.Next();) {
    tables.push_back(ConferenceTable(rows.Int(0)));
  }
  tables.push_back("NonConfSchedule");
  for (const std::string& table : tables) ReadTable(store, table, school, games);
  std::sort(games.begin(), games.end(), [](const ScheduleGame& a, const ScheduleGame& b) {
    return std::tuple(a.Week, DayOrder(a.Day), a.GameNo) <
           std::tuple(b.Week, DayOrder(b.Day), b.GameNo);
  });
  return games;
}

std::string ResultText(const ScheduleGame& game) {
  if (!game.Played) return "";
  return fmt::format("{} {}-{}", game.Score > game.OpponentScore ? "W" : "L", game.Score,
                     game.OpponentScore);
}

}  // namespace courtmere
