#include "league/team_ratings.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "league/league_constants.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

// One line of a band: when f is below (or above) `f`, Q moves by
// sign * Int(Rnd * m + a).
struct Line {
  bool below;
  double f;
  int sign;
  int m;
  int a;
};

struct QBand {
  double above;  // the band holds Q above this
  std::array<Line, 4> lines;
  int count;
};

constexpr std::array<QBand, 7> kBands = {{
    {95, {{{true, .65, -1, 10, 5}, {true, .75, -1, 6, 3}, {true, .85, -1, 5, 2}}}, 3},
    {90, {{{true, .65, -1, 10, 5}, {true, .70, -1, 6, 2}, {true, .80, -1, 4, 1}}}, 3},
    {75, {{{true, .60, -1, 8, 3}, {true, .70, -1, 4, 2}, {true, .75, -1, 3, 1}}}, 3},
    {65, {{{true, .60, -1, 8, 3}, {false, .80, 1, 3, 0}, {false, .75, 1, 2, 0}}}, 3},
    {50,
     {{{true, .45, -1, 9, 1}, {false, .75, 1, 6, 0}, {false, .60, 1, 5, 0}, {false, .50, 1, 3, 0}}},
     4},
    {30,
     {{{true, .30, -1, 6, 1}, {false, .75, 1, 9, 0}, {false, .60, 1, 8, 0}, {false, .40, 1, 6, 0}}},
     4},
    {-1e9,
     {{{true, .20, -1, 6, 1},
       {false, .75, 1, 10, 0},
       {false, .60, 1, 8, 0},
       {false, .35, 1, 6, 0}}},
     4},
}};

// The sum of the seven best Overall values of the query's rows.
double SevenBest(Store& store, const std::string& sql, const std::string& school) {
  double sum = 0;
  int n = 0;
  for (Rows rows = store.Query(sql, school); rows.Next() && n < 7; ++n) sum += rows.Double(0);
  return sum;
}

struct TeamRow {
  std::string SchoolName;
  int InitialPrestige;
  int NCTChamps, ConfChamps, NCTApps, NCTWins, NCTFinalFourApps;
};

std::vector<TeamRow> LoadTeams(Store& store) {
  std::vector<TeamRow> teams;
  for (Rows rows = store.Query(
           "SELECT SchoolName, InitialPrestige, NCTChamps, ConfChamps, NCTApps, NCTWins, "
           "NCTFinalFourApps FROM Team ORDER BY rowid");
       rows.Next();) {
    teams.push_back({rows.Text(0), rows.Int(1), rows.Int(2), rows.Int(3), rows.Int(4), rows.Int(5),
                     rows.Int(6)});
  }
  return teams;
}

// The history term: P plus the dynasty's titles and runs over its y years,
// nudged by the season's record.
double HistoryTerm(Session& session, const TeamRow& t, double p, int y) {
  double q = p;
  if (y < 1) return q;
  q = p + t.NCTChamps + static_cast<double>(t.ConfChamps) / y +
      static_cast<double>(t.NCTApps + t.NCTWins) / (2.0 * y) + 1.5 * t.NCTFinalFourApps / y;
  auto winPercent = session.Db().ScalarDouble(
      "SELECT WinPercent FROM TeamStats WHERE SchoolName = ?", t.SchoolName);
  if (winPercent) q += WinFractionCorrection(session.rng, q, 100 * *winPercent);
  return q;
}

// Design decision: the alumni term divides by the dynasty's years, so it
// counts from the second year on; a first year has no alumni anyway.
double AlumniTerm(Store& store, const std::string& school, int y) {
  if (y < 1) return 0;
  const int64_t c =
      store.ScalarInt("SELECT count(Id) FROM Alumni WHERE Team = ?", school).value_or(0);
  return c > 0 ? static_cast<double>(c) / y : 0;
}

std::array<int64_t, 6> TopByPosition(Store& store, const std::string& school) {
  std::array<int64_t, 6> top{};
  for (Rows rows = store.Query(
           "SELECT PlayerPosition, MAX(Overall) FROM Player WHERE Team = ? AND NBAFlag = 0 "
           "GROUP BY PlayerPosition",
           school);
       rows.Next();) {
    const int position = rows.Int(0);
    if (position >= 1 && position <= 5) top[position] = ToStoredInt(rows.Double(1));
  }
  return top;
}

void RateTeam(Session& session, const TeamRow& t, int y) {
  Store& store = session.Db();
  Rng& rng = session.rng;
  const double s = SevenBest(
      store, "SELECT Overall FROM Player WHERE Team = ? ORDER BY Overall DESC", t.SchoolName);
  const std::array<int64_t, 6> top = TopByPosition(store, t.SchoolName);
  const int r = Int(rng.Rnd() * 5 + 1);
  const double p = (r + (s - 373) / 2) * 0.15 + t.InitialPrestige * 0.85;
  const double q = HistoryTerm(session, t, p, y) + AlumniTerm(store, t.SchoolName, y);
  const double prestige = std::min(p * 0.7 + q * 0.3, 100.0);
  const int tvGames = CInt(Int(rng.Rnd() * 5 + 1) + prestige / 10);
  store.Exec(
      "UPDATE Team SET TeamRating = ?, TopPG = ?, TopSG = ?, TopSF = ?, TopPF = ?, TopC = ?, "
      "Prestige = ?, TVGames = ?, Scholarships = ? WHERE SchoolName = ?",
      ToStoredInt(s), top[1], top[2], top[3], top[4], top[5], prestige, tvGames,
      Scholarships(store, t.SchoolName), t.SchoolName);
}

}  // namespace

int Scholarships(Store& store, const std::string& school) {
  const int64_t leaving =
      store.ScalarInt("SELECT count(Id) FROM Player WHERE Team = ? AND NBAFlag = 1", school)
          .value_or(0);
  const int64_t players =
      store.ScalarInt("SELECT count(Id) FROM Player WHERE Team = ?", school).value_or(0);
  return static_cast<int>(std::min<int64_t>(leaving + kRosterSize - players, kMostScholarships));
}

double WinFractionCorrection(Rng& rng, double q, double f) {
  for (const QBand& band : kBands) {
    if (!(q > band.above)) continue;
    for (int i = 0; i < band.count; ++i) {
      const Line& l = band.lines[i];
      if (l.below ? f < l.f : f > l.f) return l.sign * Int(rng.Rnd() * l.m + l.a);
    }
    return 0;
  }
  return 0;
}

void TeamRatings(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  const int year = LoadConfig(store).CurrYear;
  for (const TeamRow& t : LoadTeams(store)) RateTeam(session, t, year - 2001);
  tx.Commit();
}

void ScrubTeamRatings(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  std::vector<std::pair<std::string, int>> field;
  for (Rows rows = store.Query("SELECT SchoolName, InitialPrestige FROM ScrubTeam ORDER BY rowid");
       rows.Next();) {
    field.emplace_back(rows.Text(0), rows.Int(1));
  }
  // ScrubTeam keeps no best man per position: strength and prestige are all
  // a background team needs.
  for (const auto& [school, initial] : field) {
    const double s = SevenBest(
        store, "SELECT Overall FROM ScrubPlayer WHERE Team = ? ORDER BY Overall DESC", school);
    const double prestige =
        (Int(session.rng.Rnd() * 5 + 1) + (s - 400) / 2) * 0.15 + initial * 0.85;
    store.Exec("UPDATE ScrubTeam SET TeamRating = ?, Prestige = ? WHERE SchoolName = ?",
               ToStoredInt(s), prestige, school);
  }
  tx.Commit();
}

}  // namespace courtmere
