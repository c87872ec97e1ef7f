// The games of a bracket in a schedule table: writing a round's rows from
// the slots, and taking a day's results back into the slots.
//
// A game is found by its day, its GameType and the names of its two sides,
// so each bracket game meets its own row whatever the order of the game
// numbers. Both operations may run again over a day they have done: a row
// is written only when the table lacks it, a winner only into an empty slot.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "league/bracket_table.h"

namespace courtmere {

class Store;
struct GameCounter;

struct BracketPlace {
  std::string group;  // ConfTourney, NCTTourney or ACTTourney's Conference
  int slot = 0;
};

struct BracketGame {
  BracketPlace home;
  BracketPlace away;
  BracketPlace target;  // where the winner goes
  std::string gameType;
  // The winner's HostCity; without one it keeps the home slot's.
  std::optional<std::string> host;
};

// Adds to `schedule` (a League<Id>Schedule table) the games whose two slots
// are filled and that the table does not hold yet, each under the next
// game number. Returns the number of rows added.
int AddBracketGames(Store& store, GameCounter& counter, const BracketTable& table,
                    const std::string& schedule, int week, std::string_view day,
                    std::span<const BracketGame> games);

// For each game of the day that has been played (HomeScore is not 0): the
// Points and BoldFlag of both slots, and the winner's row in the target slot.
// The home side wins when its score is above the away side's. Returns the
// number of games found played.
int RecordBracketGames(Store& store, const BracketTable& table, const std::string& schedule,
                       int week, std::string_view day, std::span<const BracketGame> games);

}  // namespace courtmere
