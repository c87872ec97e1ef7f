#include "schedule/challenge_games.h"

#include <optional>
#include <string>
#include <vector>

#include "platform/rng.h"
#include "schedule/game_counter.h"
#include "schedule/league_rows.h"
#include "schedule/schedule_rows.h"
#include "store/session.h"

namespace courtmere {
namespace {

std::string_view ChallengeOrder(int r) {
  if (r > 75) return " ORDER BY SchedGroup ASC, SchoolName ASC";
  if (r > 50) return " ORDER BY SchedGroup DESC, SchoolName DESC";
  if (r > 25) return " ORDER BY Prestige ASC, SchoolName DESC";
  return " ORDER BY Prestige DESC, SchoolName ASC";
}

std::vector<std::string> Schools(Store& store, const std::string& conference,
                                 std::string_view order) {
  const std::string sql =
      "SELECT SchoolName, Prestige, SchedGroup FROM Team WHERE Conference = ?" + std::string(order);
  std::vector<std::string> schools;
  for (Rows rows = store.Query(sql, conference); rows.Next();) schools.push_back(rows.Text(0));
  return schools;
}

void AddChallenge(Store& store, Rng& rng, GameCounter& counter, const LeagueRow& league,
                  const std::string& partner) {
  const std::string_view order = ChallengeOrder(rng.Roll(100));
  const std::vector<std::string> first = Schools(store, league.Conference, order);
  const std::vector<std::string> second = Schools(store, partner, order);
  for (size_t i = 1; i <= first.size() && i <= second.size(); ++i) {
    const bool firstAway = i % 2 == 1;
    const std::string& a = first[i - 1];
    const std::string& b = second[i - 1];
    AddNonConfGame(store, counter,
                   {firstAway ? b : a, firstAway ? a : b, firstAway ? partner : league.Conference,
                    firstAway ? league.Conference : partner, league.Week, league.Day});
  }
}

}  // namespace

void BuildChallengeGames(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  GameCounter counter = ContinueCounter(store);
  for (const LeagueRow& league : ReadLeagues(store)) {
    if (league.Challenge <= 0) continue;
    const std::optional<std::string> partner =
        store.ScalarText("SELECT Conference FROM League WHERE Id = ?", league.Challenge);
    if (!partner) continue;
    AddChallenge(store, session.rng, counter, league, *partner);
  }
  SaveGameCounter(session, counter);
  tx.Commit();
}

}  // namespace courtmere
