#include "league/postseason_fixture.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "cpu/computer_roster.h"
#include "engine/game_model.h"
#include "engine/run_engine.h"
#include "league/conf_tourney.h"
#include "league/national_tourneys.h"
#include "league/seeded_name.h"
#include "schedule/calendar_slots.h"

namespace courtmere::testing {

namespace {

struct Rated {
  std::string school;
  double points = 0;
};

// Writes Ranking from the schools' points, best first, and CRIRank with a
// rating index that follows the points loosely.
void WriteRankings(Session& session, std::vector<Rated> schools) {
  Store& store = session.Db();
  std::stable_sort(schools.begin(), schools.end(),
                   [](const Rated& a, const Rated& b) { return a.points > b.points; });
  store.Exec("DELETE FROM Ranking");
  store.Exec("DELETE FROM CRIRank");
  int rank = 0;
  for (const Rated& s : schools) {
    ++rank;
    store.Exec("INSERT INTO Ranking (SchoolName, TeamRanking, TeamPoints) VALUES (?, ?, ?)",
               s.school, rank, s.points);
    const double cri = 0.3 + s.points / 4000.0 + session.rng.Rnd() * 0.1;
    store.Exec("INSERT INTO CRIRank (SchoolName, CRIRank, CRIValue) VALUES (?, ?, ?)", s.school,
               rank, cri);
  }
}

}  // namespace

std::set<std::string> ColumnSet(Store& store, const std::string& sql) {
  std::set<std::string> values;
  for (Rows rows = store.Query(sql); rows.Next();) values.insert(rows.Text(0));
  return values;
}

const std::vector<PostseasonDay>& NationalDays() {
  static const std::vector<PostseasonDay> days = {
      {17, "Tuesday"},  {17, "Wednesday"}, {17, "Thursday"}, {17, "Friday"},
      {17, "Saturday"}, {17, "Sunday"},    {18, "Monday"},   {18, "Wednesday"},
      {18, "Thursday"}, {18, "Friday"},    {18, "Saturday"}, {18, "Sunday"},
      {19, "Monday"},   {19, "Wednesday"}, {19, "Saturday"}, {20, "Monday"}};
  return days;
}

PostseasonFixture::PostseasonFixture(uint64_t seed, Scores scores)
    : DynastyFixture(seed), scores_(scores) {
  Store::Transaction tx(store());
  WriteRegularSeason();
  // The engine plays from the depth charts the computer sets each day; the
  // user's team is handed to the computer, as the auto-sim does.
  if (scores_ == Scores::kEngine) {
    SetCPURoster(session());
    SetTeamLineup(session(), kUserSchool, 0);
    SetCoachRoles(session(), kUserSchool);
  }
  tx.Commit();
}

void PostseasonFixture::WriteRegularSeason() {
  Store& s = store();
  Rng& rng = session().rng;
  std::vector<Rated> schools;
  for (Rows rows = s.Query("SELECT SchoolName, Prestige FROM Team ORDER BY rowid"); rows.Next();) {
    const std::string school = rows.Text(0);
    const int confWins = rng.IntRnd(17, 0);
    const int totalWins = confWins + rng.IntRnd(12, 0);
    s.Exec("INSERT OR IGNORE INTO TeamStats (SchoolName) VALUES (?)", school);
    s.Exec(
        "UPDATE TeamStats SET ConfWins = ?, ConfLosses = ?, TotalWins = ?, TotalLosses = ? "
        "WHERE SchoolName = ?",
        confWins, 16 - confWins, totalWins, 29 - totalWins, school);
    schools.push_back({school, totalWins * 40.0 + rows.Double(1) * 5 + rng.Rnd() * 100});
  }
  for (Rows rows = s.Query("SELECT SchoolName FROM ScrubTeam ORDER BY rowid"); rows.Next();) {
    schools.push_back({rows.Text(0), rng.Rnd() * 900});
  }
  WriteRankings(session(), schools);
  s.Exec("UPDATE Config SET CurrWeek = 15, CurrDay = 'Saturday' WHERE IdConfig = 0");
  session().config = LoadConfig(s);
}

std::vector<LeagueRow> PostseasonFixture::Leagues() {
  std::vector<LeagueRow> leagues;
  for (Rows rows = store().Query(
           "SELECT Id, Conference, SchedType FROM League WHERE Id > 0 AND SchedType <> '' "
           "ORDER BY Id");
       rows.Next();) {
    leagues.push_back({rows.Text(1), rows.Text(2), ConferenceTable(rows.Int(0))});
  }
  return leagues;
}

std::string PostseasonFixture::UserTable() {
  const int64_t id = store()
                         .ScalarInt(
                             "SELECT League.Id FROM League, Team WHERE Team.SchoolName = ? "
                             "AND Team.Conference = League.Conference",
                             kUserSchool)
                         .value();
  return ConferenceTable(static_cast<int>(id));
}

int PostseasonFixture::PlayDay(const std::string& table, int week, const std::string& day) {
  struct Row {
    int gameNo;
    std::string home, away, type;
  };
  std::vector<Row> games;
  for (Rows rows = store().Query("SELECT GameNo, HomeTeam, AwayTeam, GameType FROM " + table +
                                     " WHERE HomeScore = 0 AND Week = ? AND GameDay = ? "
                                     "ORDER BY GameNo",
                                 week, day);
       rows.Next();) {
    games.push_back({rows.Int(0), rows.Text(1), rows.Text(2), rows.Text(3)});
  }
  auto results = std::make_unique<DayResults>();
  int index = 0;
  for (const Row& g : games) {
    int home = 0;
    int away = 0;
    if (scores_ == Scores::kEngine) {
      Game game(session());
      GameRequest request{SeededName::Parse(g.home).school, SeededName::Parse(g.away).school,
                          g.type, ++index, g.gameNo};
      request.WriteFiles = false;
      std::string box;
      std::string log = "none";
      if (RunEngine(game, *results, request, box, log) != 1) {
        throw std::runtime_error("the engine could not play " + g.home + " against " + g.away +
                                 ": " + (ui().Messages().empty() ? "" : ui().Messages().back()));
      }
      home = game.Home().Score;
      away = game.sides[1].Score;
    } else {
      home = session().rng.IntRnd(40, 50);
      away = session().rng.IntRnd(40, 50);
      if (away == home) ++away;
    }
    store().Exec("UPDATE " + table + " SET HomeScore = ?, AwayScore = ? WHERE GameNo = ?", home,
                 away, g.gameNo);
  }
  return static_cast<int>(games.size());
}

void PostseasonFixture::SetupConferenceTourneys() {
  Store::Transaction tx(store());
  for (const LeagueRow& league : Leagues()) {
    SetupConfTourney(session(), league.conference, ConfTourneySize(league.schedType));
  }
  tx.Commit();
  store().Exec("UPDATE Config SET CurrWeek = 16, CurrDay = 'Thursday' WHERE IdConfig = 0");
  session().config = LoadConfig(store());
}

void PostseasonFixture::PlayConferenceDay(const std::string& day) {
  Store::Transaction tx(store());
  const std::vector<LeagueRow> leagues = Leagues();
  for (const LeagueRow& league : leagues) PlayDay(league.table, 16, day);
  for (const LeagueRow& league : leagues) AdvanceConfTourney(session(), league.conference, 16, day);
  tx.Commit();
}

void PostseasonFixture::RunConferenceTourneys() {
  SetupConferenceTourneys();
  for (const char* day : {"Thursday", "Friday", "Saturday", "Sunday"}) PlayConferenceDay(day);
}

void PostseasonFixture::PlayNationalDay(const PostseasonDay& day) {
  Store::Transaction tx(store());
  PlayDay(UserTable(), day.week, day.day);
  RecordPostseasonDay(session(), day.week, day.day);
  tx.Commit();
}

void PostseasonFixture::RunNationalTourneys(const PostseasonDay& last) {
  SetupNationalTourneys(session());
  for (const PostseasonDay& day : NationalDays()) {
    PlayNationalDay(day);
    if (day.week == last.week && day.day == last.day) break;
  }
}

}  // namespace courtmere::testing
