#include "league/cri.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "league/selection_sort.h"
#include "store/session.h"
#include "store/store_error.h"

namespace courtmere {

namespace {

// The limits of the working table: the data model never holds more.
constexpr size_t kMaxConferences = 50;
constexpr size_t kMaxConferenceTeams = 14;
constexpr size_t kMaxSchools = 250;

// One school of the working table.
struct CriTeam {
  std::string SchoolName;
  bool Background = false;
  double CRI = 0;
  double WinPer = 0;
  double OppWin = 0;
  double OppOppWin = 0;
  size_t conference = 0;          // its conference slot
  std::vector<size_t> opponents;  // its games up to this week, as team indices
};

// The working table: the conference slots in load order, the schools in load
// order (a conference's schools stand together), and a school's index by name.
struct CriTable {
  std::vector<std::string> conferences;
  std::vector<CriTeam> teams;
  std::unordered_map<std::string, size_t> byName;
  size_t conferenceTeams = 0;  // schools in the last conference slot

  CriTeam& Add(const std::string& school, const std::string& conference, bool background);
};

CriTeam& CriTable::Add(const std::string& school, const std::string& conference, bool background) {
  if (conferences.empty() || conferences.back() != conference) {
    if (conferences.size() == kMaxConferences) {
      throw StoreError("The rating index holds at most 50 conferences.");
    }
    conferences.push_back(conference);
    conferenceTeams = 0;
  }
  if (++conferenceTeams > kMaxConferenceTeams) {
    throw StoreError("The rating index holds at most 14 teams in a conference: " + conference);
  }
  if (teams.size() == kMaxSchools) {
    throw StoreError("The rating index holds at most 250 teams.");
  }
  byName.emplace(school, teams.size());
  CriTeam& team = teams.emplace_back();
  team.SchoolName = school;
  team.Background = background;
  team.conference = conferences.size() - 1;
  return team;
}

double WinFraction(int wins, int losses) {
  return wins + losses > 0 ? static_cast<double>(wins) / (wins + losses) : 0.0;
}

double CriFormula(const CriTeam& t) {
  return 0.5 * t.OppWin + 0.25 * t.WinPer + 0.25 * t.OppOppWin;
}

void LoadTeams(Store& store, CriTable& table) {
  for (Rows r = store.Query(
           "SELECT Team.SchoolName, Team.Conference, TeamStats.TotalWins, TeamStats.TotalLosses "
           "FROM Team JOIN TeamStats ON Team.SchoolName = TeamStats.SchoolName "
           "ORDER BY Team.Conference DESC, Team.rowid");
       r.Next();) {
    table.Add(r.Text(0), r.Text(1), false).WinPer = WinFraction(r.Int(2), r.Int(3));
  }
}

// The opponents' figures of a background team, guessed from its strength:
// a stronger team is taken to meet stronger opponents.
double EstimateOpponents(Rng& rng, double strength) {
  double base = 440;
  if (strength > 58) {
    base = 480;
  } else if (strength > 49) {
    base = 460;
  }
  return (rng.Rnd() * 30 + base) / 1000;
}

void LoadBackgroundTeams(Session& session, CriTable& table) {
  session.rng.Reseed();
  for (Rows r = session.Db().Query(
           "SELECT SchoolName, Prestige, Conference, TeamRating, Wins, Losses FROM ScrubTeam "
           "ORDER BY Conference DESC, rowid");
       r.Next();) {
    CriTeam& team = table.Add(r.Text(0), r.Text(2), true);
    team.WinPer = WinFraction(r.Int(4), r.Int(5));
    const double strength = r.Double(1) * 0.45 + (r.Int(3) - 400) * 0.55;
    team.OppWin = EstimateOpponents(session.rng, strength);
    team.OppOppWin = EstimateOpponents(session.rng, strength);
    team.CRI = CriFormula(team);
  }
}

// Adds a game to the side's list when the side stands in the table, and, for
// a conference table, in that conference.
void AddGame(CriTable& table, const std::string& side, const std::string& opponent,
             std::optional<size_t> conference) {
  auto self = table.byName.find(side);
  if (self == table.byName.end()) return;
  CriTeam& team = table.teams[self->second];
  if (conference && team.conference != *conference) return;
  // Design decision: a school that is in no table of the index (never the
  // case with the program's own schedules) is not counted as an opponent.
  auto other = table.byName.find(opponent);
  if (other != table.byName.end()) team.opponents.push_back(other->second);
}

void ScanTable(Store& store, const std::string& sql, int week, CriTable& table,
               std::optional<size_t> conference) {
  for (Rows r = store.Query(sql, week); r.Next();) {
    const std::string home = r.Text(0);
    const std::string away = r.Text(1);
    AddGame(table, home, away, conference);
    AddGame(table, away, home, conference);
  }
}

// Each school's games with Week up to the current week, scored or not: first
// those of NonConfSchedule, then those of its conference's own table, each in
// table order. Background conferences have no table of their own.
void ListGames(Store& store, int week, CriTable& table) {
  ScanTable(store, "SELECT HomeTeam, AwayTeam FROM NonConfSchedule WHERE Week <= ? ORDER BY rowid",
            week, table, std::nullopt);
  for (size_t slot = 0; slot < table.conferences.size(); ++slot) {
    const auto id =
        store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", table.conferences[slot]);
    if (!id) continue;
    ScanTable(store,
              "SELECT HomeTeam, AwayTeam FROM League" + std::to_string(*id) +
                  "Schedule WHERE Week <= ? ORDER BY rowid",
              week, table, slot);
  }
}

// The mean of a figure over each school's opponents, added on top of what the
// school already holds (a background team's estimate) before the division.
template <class Source, class Target>
void OpponentPass(CriTable& table, Source source, Target target) {
  for (CriTeam& team : table.teams) {
    double& sum = target(team);
    for (size_t opponent : team.opponents) sum += source(table.teams[opponent]);
    if (!team.opponents.empty()) sum /= static_cast<double>(team.opponents.size());
  }
}

struct CriResult {
  double CRIValue = 0;
  std::string SchoolName;
  double SchedStrength = 0;
  double WinPer = 0;
  int SchedRank = 0;
};

std::vector<CriResult> Results(CriTable& table) {
  std::vector<CriResult> results;
  results.reserve(table.teams.size());
  for (CriTeam& team : table.teams) {
    if (!team.Background) team.CRI = CriFormula(team);
    const double schedStrength = (2 * team.OppWin) / 3 + team.OppOppWin / 3;
    results.push_back({team.CRI, team.SchoolName, schedStrength, team.WinPer, 0});
  }
  SelectionSortDescending(results, [](const CriResult& r) { return r.SchedStrength; });
  for (size_t i = 0; i < results.size(); ++i) results[i].SchedRank = static_cast<int>(i + 1);
  SelectionSortDescending(results, [](const CriResult& r) { return r.CRIValue; });
  return results;
}

void WriteCriRank(Store& store, const std::vector<CriResult>& results) {
  store.Exec("DELETE FROM CRIRank WHERE SchoolName IS NOT NULL");
  int position = 0;
  for (const CriResult& r : results) {
    store.Exec(
        "INSERT INTO CRIRank (CRIRank, CRIValue, SchedRank, SchedStrength, WinPer, SchoolName) "
        "VALUES (?, ?, ?, ?, ?, ?)",
        ++position, r.CRIValue, r.SchedRank, r.SchedStrength, r.WinPer, r.SchoolName);
  }
}

}  // namespace

void UpdateCRI(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  CriTable table;
  LoadTeams(store, table);
  LoadBackgroundTeams(session, table);
  ListGames(store, session.config.CurrWeek, table);
  OpponentPass(
      table, [](const CriTeam& t) { return t.WinPer; },
      [](CriTeam& t) -> double& { return t.OppWin; });
  OpponentPass(
      table, [](const CriTeam& t) { return t.OppWin; },
      [](CriTeam& t) -> double& { return t.OppOppWin; });
  WriteCriRank(store, Results(table));
  tx.Commit();
}

}  // namespace courtmere
