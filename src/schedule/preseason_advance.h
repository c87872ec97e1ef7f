// Moving the winners of the preseason tournaments into their next game.
//
// A Thursday winner lands on the Friday game that names his seed in a
// pairing text ("1-8" for seeds 1 and 8); a Friday winner takes the first
// open side of Sunday's final, so the winner of the first Friday game is the
// final's home side, because Friday's games are played in game-number order.
// A game is complete, and loses the "Temp" of its GameType, once both sides
// are schools.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

class Store;

// Writes `winner`, a school of `tournament`'s field, into the first game of
// that tournament that takes him.
void AdvancePreseasonTournament(Store& store, std::string_view tournament,
                                const std::string& winner);

// The day step calls this after each batch of games on a day of week 1: the
// winner of every played tournament game of that day moves on, in
// game-number order. A winner who already stands in a later game of his
// tournament has moved on before, so calling it again changes nothing.
void AdvancePreseasonWinners(Store& store, int week, std::string_view day);

}  // namespace courtmere
