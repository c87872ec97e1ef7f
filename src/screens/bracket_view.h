// What the bracket screens show (frmConfBracket, frmNCTBracket,
// frmACTBracket and the preseason bracket): the games of each round with
// the teams, their seeds, the scores of played games and the winners (shown
// bold), the sites, and the champion once the final is played.
//
// A game whose sides are not both known yet still stands in its round, with
// the open side blank, so a bracket always has its full shape.
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
};

struct BracketRound {
  std::string title;  // "First round", "Semifinals", ...
  std::string when;   // "Thursday, week 16"
  std::vector<BracketMatch> games;
};

struct BracketSection {
  std::string title;  // a region, the Final Four; empty for a one-part bracket
  std::vector<BracketRound> rounds;
};

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
