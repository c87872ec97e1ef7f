#include "history/text_reports.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "history/fixed_columns.h"
#include "people/player.h"
#include "store/config.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::string OneDecimal(double x) {
  return fmt::format("{:.1f}", x);
}

constexpr const char* kDraftHead =
    "Pick      Team            Player Name            School       POS   Ht   PPG   RPG   APG ";
constexpr const char* kDraftRule =
    "----  ------------  ----------------------  ----------------  ---  ----  ----  ----  ----";

constexpr const char* kTotalsHead =
    "PLAYER NAME      POS  G  PTS  MIN  FGM FGA FTM FTA 3FGM 3FGA OREB REB AST STL TO  BLK PF  +/-";
constexpr const char* kTotalsRule =
    "---------------  --- --- ---- ---- --- --- --- --- ---- ---- ---- --- --- --- --- --- --- "
    "----";
constexpr const char* kAveragesHead =
    "PLAYER NAME      POS  G  PPG  MPG  APG  RPG  SPG  TOPG BPG   FG%    3%   FT%  ";
constexpr const char* kAveragesRule =
    "---------------  --- --- ---- ---- ---- ---- ---- ---- ---- ----- ----- ----- ";

constexpr const char* kRosterHead =
    "Player Name     POS  Ht  Year  Shoot InSc 3s  PerD PostD Hand Pass Reb Athl Pot GPA ";
constexpr const char* kRosterRule =
    "--------------- --- ---- ----- ----- ---- --- ---- ----- ---- ---- --- ---- --- ----";
constexpr const char* kTownsHead =
    "Player Name       Year          Hometown                  High School         ";
constexpr const char* kTownsRule =
    "--------------- ---------  -------------------- ------------------------------";

// One player's season, by name and position.
struct StatsRow {
  std::string name;
  int position = 0;
  int id = 0;
  PlayerSeasonLine line;
};

std::vector<StatsRow> FromMemory(Session& session, const std::string& school) {
  std::vector<StatsRow> rows;
  const int index = session.seasonStats.FindTeam(school, PlayerStatsStore::kMaxTeams + 1);
  if (index == 0) return rows;
  const TeamSeasonLines& team = session.seasonStats.Team(index);
  for (int slot = 1; slot <= TeamSeasonLines::kSlots; ++slot) {
    const PlayerSeasonLine& l = team.Players[slot];
    if (l.Id == 0) continue;
    Rows r = session.Db().Query("SELECT AbbrName, PlayerPosition FROM Player WHERE Id = ?", l.Id);
    if (!r.Next()) continue;
    rows.push_back({r.Text(0), r.Int(1), l.Id, l});
  }
  std::stable_sort(rows.begin(), rows.end(),
                   [](const StatsRow& a, const StatsRow& b) { return a.position < b.position; });
  return rows;
}

std::vector<StatsRow> FromStore(Store& store, const std::string& school) {
  std::vector<StatsRow> rows;
  for (Rows r = store.Query(
           "SELECT p.AbbrName, p.PlayerPosition, p.Id, s.Games, s.Points, s.Minutes, s.ShotsMade, "
           "s.Shots, s.FTMade, s.FreeThrows, s.ThreesMade, s.Threes, s.OffRebounds, "
           "s.DefRebounds, s.Assists, s.Steals, s.Turnovers, s.ShotBlocks, s.Fouls, s.PlusMinus, "
           "s.PPG, s.MPG, s.APG, s.RPG, s.SPG, s.TOPG, s.BPG, s.FGPercent, s.ThreePercent, "
           "s.FTPercent FROM Player AS p, PlayerStats AS s WHERE p.Id = s.Id AND p.Team = ? "
           "ORDER BY p.PlayerPosition ASC, p.Id ASC",
           school);
       r.Next();) {
    StatsRow row{r.Text(0), r.Int(1), r.Int(2), {}};
    PlayerSeasonLine& l = row.line;
    l.Games = r.Int(3), l.Points = r.Int(4), l.Minutes = r.Int(5), l.ShotsMade = r.Int(6);
    l.Shots = r.Int(7), l.FTMade = r.Int(8), l.FreeThrows = r.Int(9), l.ThreesMade = r.Int(10);
    l.Threes = r.Int(11), l.OffRebounds = r.Int(12), l.DefRebounds = r.Int(13);
    l.Assists = r.Int(14), l.Steals = r.Int(15), l.Turnovers = r.Int(16), l.ShotBlocks = r.Int(17);
    l.Fouls = r.Int(18), l.PlusMinus = r.Int(19), l.PPG = r.Double(20), l.MPG = r.Double(21);
    l.APG = r.Double(22), l.RPG = r.Double(23), l.SPG = r.Double(24), l.TOPG = r.Double(25);
    l.BPG = r.Double(26), l.FGPercent = r.Double(27), l.ThreePercent = r.Double(28);
    l.FTPercent = r.Double(29);
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string TotalsLine(const StatsRow& row) {
  const PlayerSeasonLine& l = row.line;
  std::vector<std::string> v{row.name, PositionName(row.position)};
  for (int x : {l.Games, l.Points, l.Minutes, l.ShotsMade, l.Shots, l.FTMade, l.FreeThrows,
                l.ThreesMade, l.Threes, l.OffRebounds, l.OffRebounds + l.DefRebounds, l.Assists,
                l.Steals, l.Turnovers, l.ShotBlocks, l.Fouls, l.PlusMinus}) {
    v.push_back(std::to_string(x));
  }
  return FixedLine(kTotalsRule, v);
}

// Design decision: the three percentages are shown as percents with one
// decimal ("45.3"), as the other averages are.
std::string AveragesLine(const StatsRow& row) {
  const PlayerSeasonLine& l = row.line;
  std::vector<std::string> v{row.name, PositionName(row.position), std::to_string(l.Games)};
  for (double x : {l.PPG, l.MPG, l.APG, l.RPG, l.SPG, l.TOPG, l.BPG, l.FGPercent * 100,
                   l.ThreePercent * 100, l.FTPercent * 100}) {
    v.push_back(OneDecimal(x));
  }
  return FixedLine(kAveragesRule, v);
}

std::string ClassYear(const std::string& year) {
  if (year == "Freshman") return "Fresh";
  if (year == "Sophomore") return "Soph";
  if (year == "Junior") return "Junr";
  if (year == "Senior") return "Senr";
  return year;
}

}  // namespace

std::string DraftReport(Store& store) {
  std::string text = std::string(kDraftHead) + "\n" + kDraftRule + "\n";
  for (Rows r = store.Query("SELECT Pick, Team, Name, School, Position, Height, PPG, RPG, APG FROM "
                            "NBADraft ORDER BY "
                            "Pick ASC");
       r.Next();) {
    text += FixedLine(kDraftRule, {std::to_string(r.Int(0)), r.Text(1), r.Text(2), r.Text(3),
                                   r.Text(4), r.Text(5), OneDecimal(r.Double(6)),
                                   OneDecimal(r.Double(7)), OneDecimal(r.Double(8))}) +
            "\n";
  }
  return text;
}

std::string TeamStatsReport(Session& session, const std::string& school) {
  const std::string& stage = session.config.Stage;
  const std::vector<StatsRow> rows = stage == kStageSeason || stage == kStageSeasonOver
                                         ? FromMemory(session, school)
                                         : FromStore(session.Db(), school);
  std::string text = fmt::format("{} {} STATS\n\n", session.config.CurrYear, school);
  text += std::string(kTotalsHead) + "\n" + kTotalsRule + "\n";
  for (const StatsRow& row : rows) text += TotalsLine(row) + "\n";
  text += std::string("\n") + kAveragesHead + "\n" + kAveragesRule + "\n";
  for (const StatsRow& row : rows) text += AveragesLine(row) + "\n";
  return text;
}

std::string RosterReport(Store& store, const std::string& school, int year) {
  std::string ratings = std::string(kRosterHead) + "\n" + kRosterRule + "\n";
  std::string towns = std::string(kTownsHead) + "\n" + kTownsRule + "\n";
  for (Rows r = store.Query(
           "SELECT AbbrName, PlayerPosition, Height, PlayerYear, ShootingGrade, ScoreGrade, "
           "OutsideShootGrade, PerrDefenseGrade, PostDefenseGrade, HandlingGrade, PassingGrade, "
           "ReboundGrade, AthleticGrade, PotentialGrade, GPA, HomeTown, HighSchool FROM Player "
           "WHERE Team = ? ORDER BY PlayerPosition ASC, Id ASC",
           school);
       r.Next();) {
    std::vector<std::string> v{r.Text(0), PositionName(r.Int(1)), r.Text(2), ClassYear(r.Text(3))};
    for (int col = 4; col <= 13; ++col) v.push_back(r.Text(col));
    v.push_back(fmt::format("{:.2f}", r.Double(14)));
    ratings += FixedLine(kRosterRule, v) + "\n";
    towns += FixedLine(kTownsRule, {r.Text(0), r.Text(3), r.Text(15), r.Text(16)}) + "\n";
  }
  return fmt::format("{} {} ROSTER\n\n", year, school) + ratings + "\n" + towns;
}

}  // namespace courtmere
