#include "screens/stat_lines.h"

#include "store/session.h"

namespace courtmere {
namespace {

std::optional<StatLine> FromMemory(const PlayerStatsStore& stats, int playerId,
                                   const std::string& team) {
  const int index = stats.FindTeam(team, PlayerStatsStore::kMaxTeams + 1);
  if (index == 0) return std::nullopt;
  for (const PlayerSeasonLine& p : stats.Team(index).Players) {
    if (p.Id != playerId || p.Id == 0) continue;
    StatLine s;
    s.Games = p.Games;
    s.Minutes = p.Minutes;
    s.Points = p.Points;
    s.Rebounds = p.OffRebounds + p.DefRebounds;
    s.Assists = p.Assists;
    s.MPG = p.MPG;
    s.PPG = p.PPG;
    s.RPG = p.RPG;
    s.APG = p.APG;
    s.SPG = p.SPG;
    s.BPG = p.BPG;
    s.TOPG = p.TOPG;
    s.FGPercent = p.FGPercent;
    s.ThreePercent = p.ThreePercent;
    s.FTPercent = p.FTPercent;
    s.PlusMinus = p.PlusMinus;
    return s;
  }
  return std::nullopt;
}

// `plusMinus` names the column, or "0" for a table without one.
std::optional<StatLine> FromTable(Store& store, const char* table, const char* plusMinus,
                                  int playerId) {
  Rows r = store.Query(std::string("SELECT Games, Minutes, Points, OffRebounds + DefRebounds, "
                                   "Assists, MPG, PPG, RPG, APG, SPG, BPG, TOPG, FGPercent, "
                                   "ThreePercent, FTPercent, ") +
                           plusMinus + " FROM " + table + " WHERE Id = ?",
                       playerId);
  if (!r.Next()) return std::nullopt;
  return StatLine{r.Int(0),     r.Int(1),     r.Int(2),     r.Int(3),    r.Int(4),     r.Double(5),
                  r.Double(6),  r.Double(7),  r.Double(8),  r.Double(9), r.Double(10), r.Double(11),
                  r.Double(12), r.Double(13), r.Double(14), r.Int(15)};
}

}  // namespace

std::optional<StatLine> SeasonLine(Session& session, int playerId, const std::string& team) {
  if (session.seasonStats.FindTeam(team, PlayerStatsStore::kMaxTeams + 1) != 0) {
    return FromMemory(session.seasonStats, playerId, team);
  }
  return FromTable(session.Db(), "PlayerStats", "PlusMinus", playerId);
}

std::optional<StatLine> CareerLine(Store& store, int playerId) {
  return FromTable(store, "CareerPlayerStats", "0", playerId);
}

}  // namespace courtmere
