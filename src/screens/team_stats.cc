#include "screens/team_stats.h"

#include "people/player.h"
#include "screens/display_format.h"
#include "store/session.h"

namespace courtmere {
namespace {

std::string Made(int64_t made, int64_t tried) {
  return std::to_string(made) + "-" + std::to_string(tried);
}

}  // namespace

std::vector<PlayerStatRow> TeamPlayerStats(Session& session, const std::string& school) {
  std::vector<PlayerStatRow> rows;
  for (Rows r = session.Db().Query(
           "SELECT Id, Name, PlayerPosition, PlayerYear FROM Player WHERE Team = ? ORDER BY Id",
           school);
       r.Next();) {
    rows.push_back({r.Int(0), r.Text(1), PositionName(r.Int(2)), r.Text(3), {}});
  }
  for (PlayerStatRow& row : rows) {
    row.Line = SeasonLine(session, row.Id, school).value_or(StatLine{});
  }
  return rows;
}

std::vector<TeamStatRow> TeamTotals(Store& store, const std::string& school) {
  Rows s = store.Query(
      "SELECT TotalWins, TotalLosses, PPG, PPGAllowed, RPG, RPGAllowed, APG, APGAllowed, SPG, "
      "SPGAllowed, BPG, BPGAllowed, TOPG, TOPGAllowed, FGPercent, FGPercentAllowed, "
      "ThreePercent, ThreePercentAllowed, FTPercent, FTpercentAllowed, Points, PointsAllowed, "
      "ShotsMade, Shots, ShotsMadeAllowed, ShotsAllowed, ThreesMade, Threes, ThreesMadeAllowed, "
      "ThreesAllowed, FTMade, FreeThrows, FTMadeAllowed, FTAllowed, OffRebounds, "
      "OffReboundsAllowed, DefRebounds, DefReboundsAllowed, Fouls, FoulsAgainst "
      "FROM TeamStats WHERE SchoolName = ?",
      school);
  if (!s.Next()) return {};
  auto perGame = [&](const char* label, int col) {
    return TeamStatRow{label, FormatOneDecimal(s.Double(col)), FormatOneDecimal(s.Double(col + 1))};
  };
  auto percent = [&](const char* label, int col) {
    return TeamStatRow{label, FormatPercent(s.Double(col)), FormatPercent(s.Double(col + 1))};
  };
  auto count = [&](const char* label, int col) {
    return TeamStatRow{label, std::to_string(s.Int64(col)), std::to_string(s.Int64(col + 1))};
  };
  auto made = [&](const char* label, int col) {
    return TeamStatRow{label, Made(s.Int64(col), s.Int64(col + 1)),
                       Made(s.Int64(col + 2), s.Int64(col + 3))};
  };
  const std::string record = Made(s.Int64(0), s.Int64(1));
  return {{"Record", record, ""},
          perGame("Points per Game", 2),
          perGame("Rebounds per Game", 4),
          perGame("Assists per Game", 6),
          perGame("Steals per Game", 8),
          perGame("Blocks per Game", 10),
          perGame("Turnovers per Game", 12),
          percent("Field Goal %", 14),
          percent("Three Point %", 16),
          percent("Free Throw %", 18),
          count("Points", 20),
          made("Field Goals", 22),
          made("Three Pointers", 26),
          made("Free Throws", 30),
          count("Offensive Rebounds", 34),
          count("Defensive Rebounds", 36),
          count("Fouls", 38)};
}

}  // namespace courtmere
