#include "schedule/schedule_rows.h"

#include "schedule/calendar_slots.h"
#include "schedule/game_counter.h"
#include "store/store.h"

namespace courtmere {

void AddConferenceGame(Store& store, GameCounter& counter, int leagueId, const std::string& home,
                       const std::string& away, int week, std::string_view day) {
  const std::string sql = "INSERT INTO " + ConferenceTable(leagueId) +
                          " (Week, GameDay, GameNo, HomeTeam, AwayTeam, GameType) "
                          "VALUES (?, ?, ?, ?, ?, ?)";
  store.Exec(sql, week, day, counter.Take(), home, away, kConferenceGame);
}

void AddNonConfGame(Store& store, GameCounter& counter, const NonConfGame& game) {
  store.Exec(
      "INSERT INTO NonConfSchedule (Week, GameDay, GameNo, HomeTeam, HomeConf, AwayTeam, "
      "AwayConf, GameType) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
      game.week, game.day, counter.Take(), game.home, game.homeConf, game.away, game.awayConf,
      game.gameType);
}

}  // namespace courtmere
