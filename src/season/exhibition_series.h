// A series of exhibition games between two schools, played one after the
// other as the game days of a season are: before each game the computer
// teams get the lineup pass that the day step gives them, every game is
// recorded like a day's game, and every second game ends a week, whose
// healing the injured get. So a series of any length plays through as long
// as both schools can field a team.
#pragma once

#include <functional>
#include <string>

#include "engine/game_model.h"

namespace courtmere {

struct Session;

struct ExhibitionSeries {
  std::string home;
  std::string away;
  int games = 1;
  bool log = false;  // also write each game's play-by-play log
};

// One game of a series, as it was just played and recorded.
struct SeriesGame {
  int number = 0;  // 1 for the first game
  const Game* game = nullptr;
  std::string boxFile;
  std::string logFile;  // "none" without a log
};

// Design decision: two games make a week of the series, as two game days
// make a week of the regular season, so the injured heal after every second
// game. Healing after each game would shorten every injury by half.
inline constexpr int kSeriesGamesPerWeek = 2;
// Design decision: the games go to the store in batches of what the day's
// result tables hold, one transaction each, as a day's batch does: after
// 150 games their places are used again.
inline constexpr int kSeriesGamesPerBatch = 150;

// Plays the series, calling `afterGame` after each game has been recorded.
// Returns the number of games played: all of them, or fewer when a school
// could not field a team, which the engine has told the user ("Please set
// the depth chart for ..."); the games before stay recorded.
int PlayExhibitionSeries(Session& session, const ExhibitionSeries& series,
                         const std::function<void(const SeriesGame&)>& afterGame);

}  // namespace courtmere
