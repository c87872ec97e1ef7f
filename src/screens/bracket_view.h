// What the bracket screens show (frmConfBracket, frmNCTBracket,
// frmACTBracket and the preseason bracket): the games of each round with
// the teams, their seeds, the scores of played games and the winners (shown
// bold), the sites, and the champion once the final is played.
//
// A game whose sides are not both known yet still stands in its round, with
// the open side blank, so a bracket always has its full shape. Every game
// carries the bracket slots of its two sides and of its winner, and each
// section the connectors that join a game to the game its winner plays next:
// a drawing follows them instead of guessing from the order of the games.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct BracketSide {
  std::string school;   // empty: not decided yet
  std::string pairing;  // for an open side of a preseason game: the game it waits for ("1-8")
  int seed = 0;         // 0: no seed shown
  int points = 0;       // 0: not played yet
  bool bold = false;    // won the game
};

struct BracketMatch {
  BracketSide home;
  BracketSide away;
  std::string site;  // empty where the bracket has no sites
  // The slots of the sides and the slot the winner moves to. The preseason
  // tournaments have no slot table of their own: their games are numbered
  // the same way, seeds 1 to 8, then 11 to 14 for Thursday's winners (the
  // pairings "1-8", "4-5", "2-7", "3-6"), 21 and 22 for Friday's, 31 for
  // the champion.
  int homeSlot = 0;
  int awaySlot = 0;
  int winnerSlot = 0;
};

struct BracketRound {
  std::string title;  // "First round", "Semifinals", ...
  std::string when;   // "Thursday, week 16"; "Thursday and Friday, week 17"
  std::vector<BracketMatch> games;
};

// The winner of game `fromGame` of round `fromRound` takes a side of game
// `toGame` of the round after it.
struct BracketConnector {
  int fromRound = 0;
  int fromGame = 0;
  int toRound = 0;
  int toGame = 0;
  bool toHome = false;
};

struct BracketSection {
  std::string title;  // a region, the Final Four; empty for a one-part bracket
  std::vector<BracketRound> rounds;
  std::vector<BracketConnector> connectors;
};

// Where each game of a section stands, top to bottom, in rows of one game:
// a game with no game feeding it takes the next free row, and a game fed by
// others stands midway between them, so no two connectors cross.
// rows[round][game].
struct BracketLayout {
  std::vector<std::vector<double>> rows;
  int rowCount = 0;
};

// The connectors of a section, from the slots of its games: a game's winner
// feeds the game of the next round whose side has the winner's slot.
std::vector<BracketConnector> ConnectorsOf(const std::vector<BracketRound>& rounds);
BracketLayout LayOut(const BracketSection& section);

struct BracketView {
  std::string title;
  std::string subtitle;  // the host, or the Final Four's site
  std::vector<BracketSection> sections;
  std::string champion;  // empty until the final is played
};

// Each is empty (no sections) when the tournament has not been set up.
BracketView ConfBracketView(Store& store, const std::string& conference);
BracketView NctBracketView(Store& store);
BracketView ActBracketView(Store& store);
BracketView PreseasonBracketView(Store& store, const std::string& tournament);

}  // namespace courtmere
