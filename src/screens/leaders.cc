#include "screens/leaders.h"

#include <algorithm>
#include <set>

#include "people/player.h"
#include "platform/numeric.h"
#include "screens/display_format.h"
#include "store/session.h"

namespace courtmere {
namespace {

struct Candidate {
  const PlayerSeasonLine* line;
  const std::string* school;
  double value;
};

bool IsPercentage(LeaderStat stat) {
  return stat == LeaderStat::kFieldGoals || stat == LeaderStat::kThrees ||
         stat == LeaderStat::kFreeThrows;
}

double Fraction(int made, int tried) {
  return tried == 0 ? 0 : static_cast<double>(made) / tried;
}

// The value of a line on a board, and whether its attempts qualify it.
std::pair<double, bool> ValueOf(const PlayerSeasonLine& p, LeaderStat stat) {
  const double games = p.Games;
  switch (stat) {
    case LeaderStat::kPoints:
      return {p.Points / games, true};
    case LeaderStat::kRebounds:
      return {(p.OffRebounds + p.DefRebounds) / games, true};
    case LeaderStat::kAssists:
      return {p.Assists / games, true};
    case LeaderStat::kSteals:
      return {p.Steals / games, true};
    case LeaderStat::kBlocks:
      return {p.ShotBlocks / games, true};
    case LeaderStat::kFieldGoals:
      return {Fraction(p.ShotsMade, p.Shots), p.Shots >= 2 * p.Games};
    case LeaderStat::kThrees:
      return {Fraction(p.ThreesMade, p.Threes), p.Threes >= p.Games};
    case LeaderStat::kFreeThrows:
      return {Fraction(p.FTMade, p.FreeThrows), p.FreeThrows >= p.Games};
  }
  return {0, false};
}

// The value as the board shows it: the board ranks what the player reads.
double Shown(double value, LeaderStat stat) {
  return IsPercentage(stat) ? Round(value * 100, 1) / 100 : Round(value, 1);
}

std::set<std::string> BoardSchools(Store& store, const std::string& conference) {
  std::set<std::string> schools;
  for (Rows r =
           store.Query("SELECT SchoolName FROM Team WHERE ?1 = '' OR Conference = ?1", conference);
       r.Next();) {
    schools.insert(r.Text(0));
  }
  return schools;
}

std::vector<Candidate> Candidates(const PlayerStatsStore& stats,
                                  const std::set<std::string>& schools, LeaderStat stat) {
  std::vector<const TeamSeasonLines*> teams;
  int mostGames = 0;
  for (int t = 1; t <= PlayerStatsStore::kMaxTeams; ++t) {
    const TeamSeasonLines& team = stats.Team(t);
    if (schools.count(team.SchoolName) == 0) continue;
    teams.push_back(&team);
    for (const PlayerSeasonLine& p : team.Players) mostGames = std::max(mostGames, p.Games);
  }
  std::vector<Candidate> out;
  for (const TeamSeasonLines* team : teams) {
    for (int slot = 1; slot <= TeamSeasonLines::kSlots; ++slot) {
      const PlayerSeasonLine& p = team->Players[slot];
      if (p.Id == 0 || p.Games == 0 || 2 * p.Games < mostGames) continue;
      const auto [value, qualifies] = ValueOf(p, stat);
      if (qualifies) out.push_back({&p, &team->SchoolName, Shown(value, stat)});
    }
  }
  return out;
}

std::string ValueText(double value, LeaderStat stat) {
  return IsPercentage(stat) ? FormatPercent(value) : FormatOneDecimal(value);
}

LeaderLine RowOf(Store& store, const Candidate& c, int rank, LeaderStat stat) {
  LeaderLine row;
  row.Rank = rank;
  row.PlayerId = c.line->Id;
  row.School = *c.school;
  row.Games = c.line->Games;
  row.Value = c.value;
  row.ValueText = ValueText(c.value, stat);
  Rows r = store.Query("SELECT Name, PlayerPosition FROM Player WHERE Id = ?", row.PlayerId);
  if (r.Next()) {
    row.Name = r.Text(0);
    row.Position = PositionName(r.Int(1));
  }
  return row;
}

}  // namespace

const std::vector<LeaderStatInfo>& LeaderStats() {
  static const std::vector<LeaderStatInfo> stats = {
      {LeaderStat::kPoints, "Points per Game", "PPG"},
      {LeaderStat::kRebounds, "Rebounds per Game", "RPG"},
      {LeaderStat::kAssists, "Assists per Game", "APG"},
      {LeaderStat::kSteals, "Steals per Game", "SPG"},
      {LeaderStat::kBlocks, "Blocks per Game", "BPG"},
      {LeaderStat::kFieldGoals, "Field Goal Percentage", "FG%"},
      {LeaderStat::kThrees, "Three-Point Percentage", "3P%"},
      {LeaderStat::kFreeThrows, "Free Throw Percentage", "FT%"},
  };
  return stats;
}

std::vector<LeaderLine> Leaders(Session& session, const std::string& conference, LeaderStat stat) {
  std::vector<Candidate> candidates =
      Candidates(session.seasonStats, BoardSchools(session.Db(), conference), stat);
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.value > b.value; });
  std::vector<LeaderLine> rows;
  for (size_t i = 0; i < candidates.size(); ++i) {
    const bool tied = i > 0 && candidates[i].value == candidates[i - 1].value;
    const int rank = tied ? rows.back().Rank : static_cast<int>(i) + 1;
    if (rank > kLeaderRows) break;
    rows.push_back(RowOf(session.Db(), candidates[i], rank, stat));
  }
  return rows;
}

}  // namespace courtmere
