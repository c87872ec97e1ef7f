// A school's season as the schedule screen shows it: every game it plays,
// in its conference's table (conference games, the conference tournament,
// the national tournaments) or in NonConfSchedule, in calendar order, with
// the site, the opponent and, once played, the score and the box score.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct ScheduleGame {
  int GameNo = 0;
  int Week = 0;
  std::string Day;
  std::string GameType;
  // "Home", "Away", or "Neutral" for a tournament game.
  std::string Site;
  std::string Opponent;  // without a tournament seed
  bool Played = false;
  int Score = 0;          // the school's points
  int OpponentScore = 0;  // the opponent's
  std::string BoxScore;   // the box score's file, once played
};

// Design decision: a game of a conference or the preseason tournaments, or
// of the NCT or the ACT, is played on a neutral floor however its row names
// home and away; only "Conference" and "NonConference" games have a home.
std::vector<ScheduleGame> TeamSchedule(Store& store, const std::string& school);

// "W 78-70", "L 61-64", or "" before the game.
std::string ResultText(const ScheduleGame& game);

}  // namespace courtmere
