#include "schedule/preseason_advance.h"

#include <optional>
#include <vector>

#include "schedule/calendar_slots.h"
#include "schedule/preseason_tournaments.h"
#include "store/store.h"

namespace courtmere {
namespace {

struct OpenGame {
  int gameNo = 0;
  std::string day;
  std::string home;
  std::string away;
};

struct Entrant {
  char seed;  // the seed as the digit a pairing text shows
  std::string conference;
};

std::optional<Entrant> FindEntrant(Store& store, const std::string& school) {
  Rows rows =
      store.Query("SELECT Seed, Conference FROM PreSeasonTourney WHERE SchoolName = ?", school);
  if (!rows.Next()) return std::nullopt;
  return Entrant{static_cast<char>('0' + rows.Int(0)), rows.Text(1)};
}

bool IsPairingText(const std::string& side) {
  return side.size() > 1 && side[1] == '-';
}

// A Friday pairing text names the seeds it stands for by its first and last
// characters.
bool NamesSeed(const std::string& side, char seed) {
  return !side.empty() && (side.front() == seed || side.back() == seed);
}

enum class Side { kHome, kAway };

// The side of the game the winner takes, if any.
std::optional<Side> SideTaken(const OpenGame& game, char seed) {
  if (game.day == kFriday) {
    if (NamesSeed(game.home, seed)) return Side::kHome;
    if (NamesSeed(game.away, seed)) return Side::kAway;
  } else if (game.day == kSunday) {
    if (IsPairingText(game.home)) return Side::kHome;
    if (IsPairingText(game.away)) return Side::kAway;
  }
  return std::nullopt;
}

void TakeSide(Store& store, std::string_view tournament, const OpenGame& game, Side side,
              const std::string& school, const std::string& conference) {
  const bool home = side == Side::kHome;
  store.Exec(home ? "UPDATE NonConfSchedule SET HomeTeam = ?, HomeConf = ? WHERE GameNo = ?"
                  : "UPDATE NonConfSchedule SET AwayTeam = ?, AwayConf = ? WHERE GameNo = ?",
             school, conference, game.gameNo);
  if (!IsPairingText(home ? game.away : game.home)) {
    store.Exec("UPDATE NonConfSchedule SET GameType = ? WHERE GameNo = ?", tournament, game.gameNo);
  }
}

std::vector<OpenGame> OpenGames(Store& store, std::string_view tournament) {
  std::vector<OpenGame> games;
  const std::string temp = std::string(tournament) + std::string(kTempSuffix);
  for (Rows rows = store.Query(
           "SELECT GameNo, GameDay, HomeTeam, AwayTeam FROM NonConfSchedule WHERE GameType = ? "
           "ORDER BY GameNo ASC",
           temp);
       rows.Next();) {
    games.push_back({rows.Int(0), rows.Text(1), rows.Text(2), rows.Text(3)});
  }
  return games;
}

bool StandsInLaterGame(Store& store, std::string_view tournament, const std::string& school,
                       int gameNo) {
  const std::string temp = std::string(tournament) + std::string(kTempSuffix);
  return store
      .ScalarInt(
          "SELECT 1 FROM NonConfSchedule WHERE GameNo > ? AND (GameType = ? OR GameType = ?) "
          "AND (HomeTeam = ? OR AwayTeam = ?) LIMIT 1",
          gameNo, tournament, temp, school, school)
      .has_value();
}

}  // namespace

void AdvancePreseasonTournament(Store& store, std::string_view tournament,
                                const std::string& winner) {
  const std::optional<Entrant> entrant = FindEntrant(store, winner);
  if (!entrant) return;
  for (const OpenGame& game : OpenGames(store, tournament)) {
    if (const auto side = SideTaken(game, entrant->seed)) {
      TakeSide(store, tournament, game, *side, winner, entrant->conference);
      return;
    }
  }
}

void AdvancePreseasonWinners(Store& store, int week, std::string_view day) {
  struct Played {
    int gameNo;
    std::string tournament;
    std::string winner;
  };
  std::vector<Played> played;
  for (Rows rows = store.Query(
           "SELECT GameNo, GameType, HomeTeam, AwayTeam, HomeScore, AwayScore FROM "
           "NonConfSchedule WHERE Week = ? AND GameDay = ? AND HomeScore <> 0 ORDER BY GameNo ASC",
           week, day);
       rows.Next();) {
    std::string type = rows.Text(1);
    if (!IsPreseasonTournament(type)) continue;
    played.push_back(
        {rows.Int(0), std::move(type), rows.Int(4) > rows.Int(5) ? rows.Text(2) : rows.Text(3)});
  }
  Store::Transaction tx(store);
  for (const Played& game : played) {
    if (StandsInLaterGame(store, game.tournament, game.winner, game.gameNo)) continue;
    AdvancePreseasonTournament(store, game.tournament, game.winner);
  }
  tx.Commit();
}

}  // namespace courtmere
