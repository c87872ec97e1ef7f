#include "league/schedule_strength.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct Tally {
  double sum = 0;
  int count = 0;
};

struct School {
  int rating = 0;
  int league = 0;  // the Id of its conference
};

}  // namespace

void UpdateScheduleStrength(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  std::unordered_map<std::string, School> schools;
  for (Rows rows = store.Query(
           "SELECT Team.SchoolName, Team.TeamRating, League.Id FROM Team LEFT JOIN League ON "
           "League.Conference = Team.Conference");
       rows.Next();) {
    schools[rows.Text(0)] = {rows.Int(1), rows.Int(2)};
  }
  std::vector<int> leagues;
  for (Rows rows = store.Query("SELECT Id FROM League ORDER BY Id"); rows.Next();) {
    leagues.push_back(rows.Int(0));
  }
  // A team's games are read from its own conference's table only; each game
  // adds the opponent's rating.
  std::unordered_map<std::string, Tally> tally;
  auto count = [&](int league, const std::string& team, const std::string& opponent) {
    auto it = schools.find(team);
    if (it == schools.end() || it->second.league != league) return;
    auto other = schools.find(opponent);
    tally[team].sum += other == schools.end() ? 0 : other->second.rating;
    ++tally[team].count;
  };
  for (int id : leagues) {
    for (Rows rows =
             store.Query("SELECT HomeTeam, AwayTeam FROM League" + std::to_string(id) + "Schedule");
         rows.Next();) {
      count(id, rows.Text(0), rows.Text(1));
      count(id, rows.Text(1), rows.Text(0));
    }
  }
  // Design decision: a team without a conference game has strength 0.
  for (const auto& [school, s] : schools) {
    const Tally& t = tally[school];
    const double strength = t.count > 0 ? Round(t.sum / t.count, 1) : 0.0;
    store.Exec("UPDATE Team SET ScheduleStrength = ? WHERE SchoolName = ?", strength, school);
  }
  tx.Commit();
}

}  // namespace courtmere
