#include "league/bracket_games.h"

#include "schedule/game_counter.h"
#include "store/store.h"

namespace courtmere {

namespace {

// The two sides of a game as they stand in the bracket, when both do.
struct Sides {
  SlotRow home;
  SlotRow away;
  std::string homeName;
  std::string awayName;
};

std::optional<Sides> ReadSides(Store& store, const BracketTable& table, const BracketGame& game) {
  std::optional<SlotRow> home = ReadSlot(store, table, game.home.group, game.home.slot);
  std::optional<SlotRow> away = ReadSlot(store, table, game.away.group, game.away.slot);
  if (!home || !away) return std::nullopt;
  Sides sides{*home, *away, GameName(table, game.home.slot, home->school),
              GameName(table, game.away.slot, away->school)};
  return sides;
}

struct Score {
  int home = 0;
  int away = 0;
};

// The game's row: nullopt when the table has none, a score of 0 to 0 when it
// has not been played.
std::optional<Score> FindGame(Store& store, const std::string& schedule, int week,
                              std::string_view day, const BracketGame& game, const Sides& sides) {
  Rows rows = store.Query("SELECT HomeScore, AwayScore FROM " + schedule +
                              " WHERE Week = ? AND GameDay = ? AND GameType = ? AND HomeTeam = ? "
                              "AND AwayTeam = ? ORDER BY GameNo LIMIT 1",
                          week, day, game.gameType, sides.homeName, sides.awayName);
  if (!rows.Next()) return std::nullopt;
  return Score{rows.Int(0), rows.Int(1)};
}

}  // namespace

int AddBracketGames(Store& store, GameCounter& counter, const BracketTable& table,
                    const std::string& schedule, int week, std::string_view day,
                    std::span<const BracketGame> games) {
  int added = 0;
  for (const BracketGame& game : games) {
    const std::optional<Sides> sides = ReadSides(store, table, game);
    if (!sides || FindGame(store, schedule, week, day, game, *sides)) continue;
    store.Exec("INSERT INTO " + schedule +
                   " (Week, GameDay, GameNo, HomeTeam, AwayTeam, GameType) "
                   "VALUES (?, ?, ?, ?, ?, ?)",
               week, day, counter.Take(), sides->homeName, sides->awayName, game.gameType);
    ++added;
  }
  return added;
}

int RecordBracketGames(Store& store, const BracketTable& table, const std::string& schedule,
                       int week, std::string_view day, std::span<const BracketGame> games) {
  int played = 0;
  for (const BracketGame& game : games) {
    const std::optional<Sides> sides = ReadSides(store, table, game);
    if (!sides) continue;
    const std::optional<Score> score = FindGame(store, schedule, week, day, game, *sides);
    if (!score || score->home == 0) continue;
    const bool homeWon = score->home > score->away;
    WriteSlotResult(store, table, game.home.group, game.home.slot, score->home, homeWon);
    WriteSlotResult(store, table, game.away.group, game.away.slot, score->away, !homeWon);
    // The winner goes on as the school: its seed stays with its first game.
    const std::string& winner = homeWon ? sides->home.school : sides->away.school;
    const std::string host = game.host.value_or(sides->home.host);
    InsertSlot(store, table, game.target.group, game.target.slot, winner, host);
    ++played;
  }
  return played;
}

}  // namespace courtmere
