#include "engine/post_game.h"

#include "platform/numeric.h"
#include "store/config.h"
#include "store/store.h"

namespace courtmere {

namespace {

// Player slots searched for a man: 1 to 14.
constexpr int kSearchedSlots = 14;

PlayerSeasonLine* FindSlot(TeamSeasonLines& team, int id) {
  for (int s = 1; s <= kSearchedSlots; ++s) {
    if (team.Players[s].Id == id) return &team.Players[s];
  }
  return nullptr;
}

double Ratio(int part, int whole) {
  return whole == 0 ? 0.0 : static_cast<double>(part) / whole;
}

void AddSeason(PlayerSeasonLine& p, const GameStat& g, double rating) {
  p.Shots += g.ShotAttempts;
  p.ShotsMade += g.ShotsMade;
  p.Threes += g.ThreeAttempts;
  p.ThreesMade += g.ThreesMade;
  p.Points += g.Points;
  p.OffRebounds += g.OffRebounds;
  p.Assists += g.Assists;
  p.Turnovers += g.Turnovers;
  p.FreeThrows += g.FreeThrowAttempts;
  p.FTMade += g.FreeThrowsMade;
  p.DefRebounds += g.DefRebounds;
  p.Steals += g.Steals;
  p.ShotBlocks += g.ShotBlocks;
  p.Fouls += g.Fouls;
  p.Minutes += CInt(g.SecondsPlayed / 60.0);
  p.Games += 1;
  p.PlusMinus += g.PlusMinus;
  p.Score += rating;

  p.FGPercent = Ratio(p.ShotsMade, p.Shots);
  p.ThreePercent = Ratio(p.ThreesMade, p.Threes);
  p.FTPercent = Ratio(p.FTMade, p.FreeThrows);
  const double games = p.Games;
  p.PPG = p.Points / games;
  p.APG = p.Assists / games;
  p.RPG = (p.DefRebounds + p.OffRebounds) / games;
  p.BPG = p.ShotBlocks / games;
  p.SPG = p.Steals / games;
  p.TOPG = p.Turnovers / games;
  p.MPG = p.Minutes / games;
}

void SetWeek(PlayerSeasonLine& p, const GameStat& g, double rating, bool saturday) {
  const double rebounds = g.OffRebounds + g.DefRebounds;
  if (saturday) {
    p.WeekAssists = (p.WeekAssists + g.Assists) / 2;
    p.WeekPoints = (p.WeekPoints + g.Points) / 2;
    p.WeekSteals = (p.WeekSteals + g.Steals) / 2;
    p.WeekBlocks = (p.WeekBlocks + g.ShotBlocks) / 2;
    p.WeekTurnovers = (p.WeekTurnovers + g.Turnovers) / 2;
    p.WeekRebounds = (p.WeekRebounds + rebounds) / 2;
    p.AwardScore = (p.AwardScore + rating) / 2;
    if (p.PlayerPosition == 3) p.AwardScore -= 20;
  } else {
    p.WeekAssists = g.Assists;
    p.WeekPoints = g.Points;
    p.WeekSteals = g.Steals;
    p.WeekBlocks = g.ShotBlocks;
    p.WeekTurnovers = g.Turnovers;
    p.WeekRebounds = rebounds;
    p.AwardScore = rating;
  }
}

// The TeamStats columns, read and written as one row.
struct TeamRow {
  int TotalWins, TotalLosses, HomeWins, HomeLosses, AwayWins, AwayLosses, ConfWins, ConfLosses;
  int Points, Shots, ShotsMade, Threes, ThreesMade, FreeThrows, FTMade, OffRebounds, DefRebounds,
      Assists, Turnovers, Steals, ShotBlocks, Fouls;
  int PointsAllowed, ShotsAllowed, ShotsMadeAllowed, ThreesAllowed, ThreesMadeAllowed, FTAllowed,
      FTMadeAllowed, OffReboundsAllowed, DefReboundsAllowed, AssistsAllowed, TurnoversAllowed,
      StealsAllowed, ShotBlocksAllowed, FoulsAgainst;
  double FGPercent, ThreePercent, FTPercent;
};

constexpr const char* kReadTeam =
    "SELECT TotalWins, TotalLosses, HomeWins, HomeLosses, AwayWins, AwayLosses, ConfWins, "
    "ConfLosses, Points, Shots, ShotsMade, Threes, ThreesMade, FreeThrows, FTMade, OffRebounds, "
    "DefRebounds, Assists, Turnovers, Steals, ShotBlocks, Fouls, PointsAllowed, ShotsAllowed, "
    "ShotsMadeAllowed, ThreesAllowed, ThreesMadeAllowed, FTAllowed, FTMadeAllowed, "
    "OffReboundsAllowed, DefReboundsAllowed, AssistsAllowed, TurnoversAllowed, StealsAllowed, "
    "ShotBlocksAllowed, FoulsAgainst, FGPercent, ThreePercent, FTPercent FROM TeamStats WHERE "
    "SchoolName = ?";

constexpr const char* kWriteTeam =
    "UPDATE TeamStats SET TotalWins = ?, TotalLosses = ?, HomeWins = ?, HomeLosses = ?, "
    "AwayWins = ?, AwayLosses = ?, ConfWins = ?, ConfLosses = ?, WinPercent = ?, Points = ?, "
    "Shots = ?, ShotsMade = ?, Threes = ?, ThreesMade = ?, FreeThrows = ?, FTMade = ?, "
    "OffRebounds = ?, DefRebounds = ?, Assists = ?, Turnovers = ?, Steals = ?, ShotBlocks = ?, "
    "Fouls = ?, PointsAllowed = ?, ShotsAllowed = ?, ShotsMadeAllowed = ?, ThreesAllowed = ?, "
    "ThreesMadeAllowed = ?, FTAllowed = ?, FTMadeAllowed = ?, OffReboundsAllowed = ?, "
    "DefReboundsAllowed = ?, AssistsAllowed = ?, TurnoversAllowed = ?, StealsAllowed = ?, "
    "ShotBlocksAllowed = ?, FoulsAgainst = ?, FGPercent = ?, ThreePercent = ?, FTPercent = ?, "
    "PPG = ?, APG = ?, RPG = ?, BPG = ?, SPG = ?, TOPG = ?, FGPercentAllowed = ?, "
    "ThreePercentAllowed = ?, FTpercentAllowed = ?, PPGAllowed = ?, APGAllowed = ?, "
    "RPGAllowed = ?, BPGAllowed = ?, SPGAllowed = ?, TOPGAllowed = ? WHERE SchoolName = ?";

bool ReadTeamRow(Store& store, const std::string& school, TeamRow& row) {
  Rows rows = store.Query(kReadTeam, school);
  if (!rows.Next()) return false;
  int c = 0;
  for (int* field : {&row.TotalWins,
                     &row.TotalLosses,
                     &row.HomeWins,
                     &row.HomeLosses,
                     &row.AwayWins,
                     &row.AwayLosses,
                     &row.ConfWins,
                     &row.ConfLosses,
                     &row.Points,
                     &row.Shots,
                     &row.ShotsMade,
                     &row.Threes,
                     &row.ThreesMade,
                     &row.FreeThrows,
                     &row.FTMade,
                     &row.OffRebounds,
                     &row.DefRebounds,
                     &row.Assists,
                     &row.Turnovers,
                     &row.Steals,
                     &row.ShotBlocks,
                     &row.Fouls,
                     &row.PointsAllowed,
                     &row.ShotsAllowed,
                     &row.ShotsMadeAllowed,
                     &row.ThreesAllowed,
                     &row.ThreesMadeAllowed,
                     &row.FTAllowed,
                     &row.FTMadeAllowed,
                     &row.OffReboundsAllowed,
                     &row.DefReboundsAllowed,
                     &row.AssistsAllowed,
                     &row.TurnoversAllowed,
                     &row.StealsAllowed,
                     &row.ShotBlocksAllowed,
                     &row.FoulsAgainst}) {
    *field = rows.Int(c++);
  }
  row.FGPercent = rows.Double(c++);
  row.ThreePercent = rows.Double(c++);
  row.FTPercent = rows.Double(c);
  return true;
}

void AddOwn(TeamRow& r, const GameStat& own) {
  r.Assists += own.Assists;
  r.FreeThrows += own.FreeThrowAttempts;
  r.FTMade += own.FreeThrowsMade;
  r.OffRebounds += own.OffRebounds;
  r.Points += own.Points;
  r.Shots += own.ShotAttempts;
  r.ShotsMade += own.ShotsMade;
  r.Threes += own.ThreeAttempts;
  r.ThreesMade += own.ThreesMade;
  r.Turnovers += own.Turnovers;
  r.DefRebounds += own.DefRebounds;
  r.Fouls += own.Fouls;
  r.ShotBlocks += own.ShotBlocks;
  r.Steals += own.Steals;
}

void AddAllowed(TeamRow& r, const GameStat& opp) {
  r.AssistsAllowed += opp.Assists;
  r.FTAllowed += opp.FreeThrowAttempts;
  r.FTMadeAllowed += opp.FreeThrowsMade;
  r.OffReboundsAllowed += opp.OffRebounds;
  r.PointsAllowed += opp.Points;
  r.ShotsAllowed += opp.ShotAttempts;
  r.ShotsMadeAllowed += opp.ShotsMade;
  r.ThreesAllowed += opp.ThreeAttempts;
  r.ThreesMadeAllowed += opp.ThreesMade;
  r.TurnoversAllowed += opp.Turnovers;
  r.DefReboundsAllowed += opp.DefRebounds;
  r.FoulsAgainst += opp.Fouls;
  r.ShotBlocksAllowed += opp.ShotBlocks;
  r.StealsAllowed += opp.Steals;
}

void AddResult(TeamRow& r, bool home, bool won, bool conference) {
  if (won) {
    ++r.TotalWins;
    ++(home ? r.HomeWins : r.AwayWins);
    if (conference) ++r.ConfWins;
  } else {
    ++r.TotalLosses;
    ++(home ? r.HomeLosses : r.AwayLosses);
    if (conference) ++r.ConfLosses;
  }
}

void WriteTeamRow(Store& store, const std::string& school, const TeamRow& r) {
  // Games as a 16-bit whole number; the win percent stores a hundredth of
  // the winning fraction, as every reader expects.
  const int games = static_cast<int16_t>(r.TotalWins + r.TotalLosses);
  const double g = games;
  const double fg = r.Shots == 0 ? r.FGPercent : static_cast<double>(r.ShotsMade) / r.Shots;
  const double three =
      r.Threes == 0 ? r.ThreePercent : static_cast<double>(r.ThreesMade) / r.Threes;
  const double ft = r.FreeThrows == 0 ? r.FTPercent : static_cast<double>(r.FTMade) / r.FreeThrows;
  store.Exec(kWriteTeam, r.TotalWins, r.TotalLosses, r.HomeWins, r.HomeLosses, r.AwayWins,
             r.AwayLosses, r.ConfWins, r.ConfLosses, r.TotalWins / (g * 100), r.Points, r.Shots,
             r.ShotsMade, r.Threes, r.ThreesMade, r.FreeThrows, r.FTMade, r.OffRebounds,
             r.DefRebounds, r.Assists, r.Turnovers, r.Steals, r.ShotBlocks, r.Fouls,
             r.PointsAllowed, r.ShotsAllowed, r.ShotsMadeAllowed, r.ThreesAllowed,
             r.ThreesMadeAllowed, r.FTAllowed, r.FTMadeAllowed, r.OffReboundsAllowed,
             r.DefReboundsAllowed, r.AssistsAllowed, r.TurnoversAllowed, r.StealsAllowed,
             r.ShotBlocksAllowed, r.FoulsAgainst, fg, three, ft, r.Points / g, r.Assists / g,
             (r.OffRebounds + r.DefRebounds) / g, r.ShotBlocks / g, r.Steals / g, r.Turnovers / g,
             Ratio(r.ShotsMadeAllowed, r.ShotsAllowed), Ratio(r.ThreesMadeAllowed, r.ThreesAllowed),
             Ratio(r.FTMadeAllowed, r.FTAllowed), r.PointsAllowed / g, r.AssistsAllowed / g,
             (r.OffReboundsAllowed + r.DefReboundsAllowed) / g, r.ShotBlocksAllowed / g,
             r.StealsAllowed / g, r.TurnoversAllowed / g, school);
}

}  // namespace

double GameRating(const GameStat& g) {
  return g.Assists * 1.5 + g.Points + 2 * g.Steals + g.OffRebounds + g.DefRebounds - g.Turnovers;
}

void RecordPlayerStats(const DayResults& day, PlayerStatsStore& stats, const Config& config,
                       int batchIndex) {
  const DayTeamLine& teams = day.TeamLines[batchIndex];
  const auto& lines = day.PlayerLines[batchIndex];
  const bool saturday = config.CurrDay == "Saturday";
  for (int side = 0; side < 2; ++side) {
    const std::string& school = side == 0 ? teams.Home.TeamName : teams.Away.TeamName;
    const int index = stats.FindTeam(school);
    if (index == 0) continue;
    TeamSeasonLines& team = stats.Team(index);
    for (int k = 1; k <= 13; ++k) {
      const GameStat& line = lines[side == 0 ? k : k + DayResults::kAwayOffset];
      if (line.Id == 0) continue;
      PlayerSeasonLine* player = FindSlot(team, line.Id);
      if (player == nullptr || line.SecondsPlayed < 1) continue;
      const double rating = GameRating(line);
      AddSeason(*player, line, rating);
      SetWeek(*player, line, rating, saturday);
    }
  }
}

void RecordTeamStats(Store& store, const DayResults& day, int batchIndex,
                     const std::function<void()>& tick) {
  const DayTeamLine& teams = day.TeamLines[batchIndex];
  // Equal points, possible only after the last overtime, count as an away win.
  const bool homeWon = teams.Home.Points > teams.Away.Points;
  const bool conference = teams.GameType == "Conference";
  for (int side = 0; side < 2; ++side) {
    const bool home = side == 0;
    const GameStat& own = home ? teams.Home : teams.Away;
    const GameStat& opp = home ? teams.Away : teams.Home;
    TeamRow row{};
    if (!ReadTeamRow(store, own.TeamName, row)) continue;
    AddOwn(row, own);
    AddResult(row, home, home == homeWon, conference);
    AddAllowed(row, opp);
    WriteTeamRow(store, own.TeamName, row);
    if (tick) tick();
  }
}

}  // namespace courtmere
