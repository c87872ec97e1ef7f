#include "store/season_stats.h"

#include <string>
#include <vector>

#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {
namespace {

struct School {
  std::string name;
  std::string conference;
};

std::vector<School> Schools(Store& store, const char* sql) {
  std::vector<School> schools;
  for (Rows rows = store.Query(sql); rows.Next();) schools.push_back({rows.Text(0), rows.Text(1)});
  return schools;
}

constexpr const char* kPlayerLines =
    "SELECT p.Id, p.PlayerPosition, s.Games, s.Minutes, s.Points, s.Shots, s.ShotsMade, "
    "s.Threes, s.ThreesMade, s.FreeThrows, s.FTMade, s.OffRebounds, s.DefRebounds, s.Assists, "
    "s.Steals, s.ShotBlocks, s.Turnovers, s.Fouls, s.PlusMinus, s.PPG, s.APG, s.RPG, s.SPG, "
    "s.BPG, s.TOPG, s.MPG, s.FGPercent, s.ThreePercent, s.FTPercent, s.AwardScore "
    "FROM PlayerStats s JOIN Player p ON s.Id = p.Id WHERE p.Team = ? ORDER BY p.Id ASC";

void ReadPlayerLine(const Rows& r, PlayerSeasonLine& p) {
  p.Id = r.Int(0);
  p.PlayerPosition = r.Int(1);
  p.Games = r.Int(2);
  p.Minutes = r.Int(3);
  p.Points = r.Int(4);
  p.Shots = r.Int(5);
  p.ShotsMade = r.Int(6);
  p.Threes = r.Int(7);
  p.ThreesMade = r.Int(8);
  p.FreeThrows = r.Int(9);
  p.FTMade = r.Int(10);
  p.OffRebounds = r.Int(11);
  p.DefRebounds = r.Int(12);
  p.Assists = r.Int(13);
  p.Steals = r.Int(14);
  p.ShotBlocks = r.Int(15);
  p.Turnovers = r.Int(16);
  p.Fouls = r.Int(17);
  p.PlusMinus = r.Int(18);
  p.PPG = r.Double(19);
  p.APG = r.Double(20);
  p.RPG = r.Double(21);
  p.SPG = r.Double(22);
  p.BPG = r.Double(23);
  p.TOPG = r.Double(24);
  p.MPG = r.Double(25);
  p.FGPercent = r.Double(26);
  p.ThreePercent = r.Double(27);
  p.FTPercent = r.Double(28);
  // Design decision: PlayerStats.AwardScore keeps the season's sum of game
  // ratings (the slot's Score); the week's rating travels in WeekAward.Score.
  p.Score = r.Double(29);
}

void ReadWeekFigures(Store& store, PlayerSeasonLine& p) {
  Rows r = store.Query(
      "SELECT Points, Rebounds, Assists, Steals, ShotBlocks, Turnovers, Score FROM WeekAward "
      "WHERE id = ?",
      p.Id);
  if (!r.Next()) return;
  p.WeekPoints = r.Double(0);
  p.WeekRebounds = r.Double(1);
  p.WeekAssists = r.Double(2);
  p.WeekSteals = r.Double(3);
  p.WeekBlocks = r.Double(4);
  p.WeekTurnovers = r.Double(5);
  p.AwardScore = r.Double(6);
}

void LoadTeam(Store& store, const School& school, TeamSeasonLines& team) {
  team.SchoolName = school.name;
  team.Conference = school.conference;
  int slot = 1;
  for (Rows r = store.Query(kPlayerLines, school.name); r.Next() && slot <= TeamSeasonLines::kSlots;
       ++slot) {
    ReadPlayerLine(r, team.Players[slot]);
    ReadWeekFigures(store, team.Players[slot]);
  }
}

void LoadScrubTeam(Store& store, const School& school, TeamSeasonLines& team) {
  team.SchoolName = school.name;
  team.Conference = school.conference;
  int slot = 1;
  for (Rows r = store.Query(
           "SELECT Id, PlayerPosition, Games, PPG, APG, RPG, SPG, TOPG, BPG, MPG FROM ScrubPlayer "
           "WHERE Team = ? ORDER BY Id ASC",
           school.name);
       r.Next() && slot <= TeamSeasonLines::kSlots; ++slot) {
    PlayerSeasonLine& p = team.Players[slot];
    p.Id = r.Int(0);
    p.PlayerPosition = r.Int(1);
    p.Games = r.Int(2);
    p.PPG = r.Double(3);
    p.APG = r.Double(4);
    p.RPG = r.Double(5);
    p.SPG = r.Double(6);
    p.TOPG = r.Double(7);
    p.BPG = r.Double(8);
    p.MPG = r.Double(9);
  }
}

const PlayerSeasonLine* SlotOf(const TeamSeasonLines& team, int id) {
  for (int slot = 1; slot <= TeamSeasonLines::kSlots; ++slot) {
    if (team.Players[slot].Id == id) return &team.Players[slot];
  }
  return nullptr;
}

void WritePlayerLine(Store& store, int id, const PlayerSeasonLine& p) {
  store.Exec(
      "INSERT INTO PlayerStats (Id, Games, Minutes, Points, Shots, ShotsMade, Threes, ThreesMade, "
      "FreeThrows, FTMade, OffRebounds, DefRebounds, Assists, Steals, ShotBlocks, Turnovers, "
      "Fouls, PlusMinus, PPG, APG, RPG, SPG, BPG, TOPG, MPG, FGPercent, ThreePercent, FTPercent, "
      "AwardScore) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
      "?, ?, ?, ?, ?)",
      id, p.Games, p.Minutes, p.Points, p.Shots, p.ShotsMade, p.Threes, p.ThreesMade, p.FreeThrows,
      p.FTMade, p.OffRebounds, p.DefRebounds, p.Assists, p.Steals, p.ShotBlocks, p.Turnovers,
      p.Fouls, p.PlusMinus, p.PPG, p.APG, p.RPG, p.SPG, p.BPG, p.TOPG, p.MPG, p.FGPercent,
      p.ThreePercent, p.FTPercent, p.Score);
}

// Design decision: every week figure is written, not only points, rebounds
// and the rating, so that a save made in mid-week gives back the same player
// of the week. The table keeps whole numbers, rounded half to even.
void WriteWeekFigures(Store& store, int id, const PlayerSeasonLine& p) {
  store.Exec(
      "INSERT INTO WeekAward (id, Points, Rebounds, Assists, Steals, ShotBlocks, Turnovers, Score) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT(id) DO UPDATE SET Points = excluded.Points, "
      "Rebounds = excluded.Rebounds, Assists = excluded.Assists, Steals = excluded.Steals, "
      "ShotBlocks = excluded.ShotBlocks, Turnovers = excluded.Turnovers, Score = excluded.Score",
      id, ToStoredInt(p.WeekPoints), ToStoredInt(p.WeekRebounds), ToStoredInt(p.WeekAssists),
      ToStoredInt(p.WeekSteals), ToStoredInt(p.WeekBlocks), ToStoredInt(p.WeekTurnovers),
      p.AwardScore);
}

void SaveTeam(Store& store, const TeamSeasonLines& team) {
  std::vector<int> ids;
  for (Rows r =
           store.Query("SELECT Id FROM Player WHERE Team = ? ORDER BY Id ASC", team.SchoolName);
       r.Next();) {
    ids.push_back(r.Int(0));
  }
  // Design decision: a player is matched to his slot by Id, so a roster that
  // changed since the figures were loaded can't shift them to another man; a
  // player without a slot gets a row of zeros.
  for (int id : ids) {
    const PlayerSeasonLine* slot = SlotOf(team, id);
    const PlayerSeasonLine line = slot ? *slot : PlayerSeasonLine{};
    WritePlayerLine(store, id, line);
    WriteWeekFigures(store, id, line);
  }
}

void SaveScrubTeam(Store& store, const TeamSeasonLines& team) {
  for (int slot = 1; slot <= TeamSeasonLines::kSlots; ++slot) {
    const PlayerSeasonLine& p = team.Players[slot];
    if (p.Id == 0) continue;
    store.Exec(
        "UPDATE ScrubPlayer SET Games = ?, PPG = ?, APG = ?, RPG = ?, SPG = ?, TOPG = ?, BPG = ?, "
        "MPG = ? WHERE Id = ?",
        p.Games, p.PPG, p.APG, p.RPG, p.SPG, p.TOPG, p.BPG, p.MPG, p.Id);
  }
}

}  // namespace

void LoadSeasonStats(Session& session) {
  Store& store = session.Db();
  PlayerStatsStore& stats = session.seasonStats;
  stats.Clear();
  int index = 1;
  for (const School& school :
       Schools(store, "SELECT SchoolName, Conference FROM Team ORDER BY rowid")) {
    if (index > PlayerStatsStore::kMaxTeams) return;
    LoadTeam(store, school, stats.Team(index++));
  }
  for (const School& school :
       Schools(store, "SELECT SchoolName, Conference FROM ScrubTeam ORDER BY rowid")) {
    if (index > PlayerStatsStore::kMaxTeams) return;
    LoadScrubTeam(store, school, stats.Team(index++));
  }
}

void SaveSeasonStats(Session& session) {
  const PlayerStatsStore& stats = session.seasonStats;
  // Design decision: figures that were never filled (no team in the first
  // entry) write nothing, since emptying PlayerStats then would lose the
  // season's figures kept in the store.
  if (stats.Team(1).SchoolName.empty()) return;
  Store& store = session.Db();
  const int teams = static_cast<int>(store.RowCount("Team"));
  const int scrubTeams = static_cast<int>(store.RowCount("ScrubTeam"));
  Store::Transaction tx(store);
  store.Exec("DELETE FROM PlayerStats WHERE Id > 0");
  int index = 1;
  for (; index <= teams && index <= PlayerStatsStore::kMaxTeams; ++index) {
    SaveTeam(store, stats.Team(index));
  }
  for (int i = 0; i < scrubTeams && index <= PlayerStatsStore::kMaxTeams; ++i, ++index) {
    SaveScrubTeam(store, stats.Team(index));
  }
  tx.Commit();
}

}  // namespace courtmere
