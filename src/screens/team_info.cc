#include "screens/team_info.h"

#include "league/prestige_bands.h"
#include "screens/display_format.h"
#include "store/config.h"
#include "store/store.h"

namespace courtmere {
namespace {

std::string WinLoss(int64_t wins, int64_t losses) {
  return std::to_string(wins) + "-" + std::to_string(losses);
}

// The season's games join the school's all-time record only at the season's
// end; until then the record shown adds the games played so far, so it is
// never behind the season's own.
std::string AllTimeRecord(Store& store, const std::string& school, int64_t wins, int64_t games) {
  const std::string stage =
      store.ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0").value_or("");
  if (stage == kStageSeason || stage == kStageSeasonOver) {
    Rows s =
        store.Query("SELECT TotalWins, TotalLosses FROM TeamStats WHERE SchoolName = ?", school);
    if (s.Next()) {
      wins += s.Int(0);
      games += s.Int(0) + s.Int(1);
    }
  }
  return WinLoss(wins, games - wins);
}

// The names of the school's staff in one table, joined by ", ".
std::string Names(Store& store, const std::string& sql, const std::string& school) {
  std::string names;
  for (Rows r = store.Query(sql, school); r.Next();) {
    if (!names.empty()) names += ", ";
    names += r.Text(0);
  }
  return names;
}

void AddProfile(Store& store, const std::string& school, std::vector<InfoLine>& lines) {
  Rows t = store.Query(
      "SELECT Location, State, Conference, Division, Region, Colors, Population, ArenaCapacity, "
      "Prestige, TeamRating, TVGames, ConfChamps, NCTApps, NCTWins, NCTLosses, NCTChamps, "
      "ACTApps, ACTWins, ACTLosses, ACTChamps, OverallWins, OverallGames, ClassRank FROM Team "
      "WHERE SchoolName = ?",
      school);
  if (!t.Next()) return;
  lines.push_back({"School", school});
  lines.push_back({"Location", t.Text(0) + ", " + t.Text(1)});
  lines.push_back({"Conference", t.Text(2)});
  lines.push_back({"Division", t.Text(3)});
  lines.push_back({"Region", t.Text(4)});
  lines.push_back({"Colors", t.Text(5)});
  lines.push_back({"Population", FormatThousands(t.Int64(6))});
  lines.push_back({"Arena Capacity", FormatThousands(t.Int64(7))});
  lines.push_back({"Prestige", BandOf(t.Double(8)).Label});
  lines.push_back({"Team Rating", std::to_string(t.Int(9))});
  lines.push_back({"TV Games", std::to_string(t.Int(10))});
  // The rank of this season's freshmen among the nation's recruiting classes.
  lines.push_back(
      {"Recruiting Class", t.Int(22) > 0 ? "No. " + std::to_string(t.Int(22)) : "Unranked"});
  lines.push_back({"Conference Titles", std::to_string(t.Int(11))});
  lines.push_back({"NCT Appearances", std::to_string(t.Int(12))});
  lines.push_back({"NCT Record", WinLoss(t.Int(13), t.Int(14))});
  lines.push_back({"NCT Titles", std::to_string(t.Int(15))});
  lines.push_back({"ACT Appearances", std::to_string(t.Int(16))});
  lines.push_back({"ACT Record", WinLoss(t.Int(17), t.Int(18))});
  lines.push_back({"ACT Titles", std::to_string(t.Int(19))});
  lines.push_back({"All-Time Record", AllTimeRecord(store, school, t.Int(20), t.Int(21))});
}

void AddSeason(Store& store, const std::string& school, std::vector<InfoLine>& lines) {
  Rows s = store.Query(
      "SELECT TotalWins, TotalLosses, ConfWins, ConfLosses, HomeWins, HomeLosses, AwayWins, "
      "AwayLosses FROM TeamStats WHERE SchoolName = ?",
      school);
  if (!s.Next()) return;
  lines.push_back({"Record", WinLoss(s.Int(0), s.Int(1))});
  lines.push_back({"Conference Record", WinLoss(s.Int(2), s.Int(3))});
  lines.push_back({"Home", WinLoss(s.Int(4), s.Int(5))});
  lines.push_back({"Away", WinLoss(s.Int(6), s.Int(7))});
}

void AddStaff(Store& store, const std::string& school, std::vector<InfoLine>& lines) {
  const std::string head = Names(store, "SELECT Name FROM HeadCoach WHERE Team = ?", school);
  if (!head.empty()) lines.push_back({"Head Coach", head});
  lines.push_back(
      {"Offensive Coach",
       Names(store, "SELECT Name FROM Coach WHERE Team = ? AND OffPoints = 1", school)});
  lines.push_back(
      {"Defensive Coach",
       Names(store, "SELECT Name FROM Coach WHERE Team = ? AND DefPoints = 1", school)});
  lines.push_back(
      {"Recruiting Coach",
       Names(store, "SELECT Name FROM Coach WHERE Team = ? AND RecPoints = 2", school)});
  lines.push_back({"Head Scout", Names(store, "SELECT Name FROM Scout WHERE Team = ?", school)});
  lines.push_back(
      {"Head Trainer", Names(store, "SELECT Name FROM Trainer WHERE Team = ?", school)});
}

}  // namespace

std::vector<InfoLine> TeamInfo(Store& store, const std::string& school) {
  std::vector<InfoLine> lines;
  AddProfile(store, school, lines);
  if (lines.empty()) return lines;
  AddSeason(store, school, lines);
  AddStaff(store, school, lines);
  return lines;
}

}  // namespace courtmere
