// Everything the season driver keeps while a dynasty's season runs: the
// session, the libraries that plug into the day step (recruiting, history),
// the desktop's observer, the game and the day's result tables the batch
// plays on, the Today's Games screen, the conferences already played in
// this step, the auto-sim flag and the caption the last step set.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "engine/game_model.h"
#include "season/day_screen.h"

namespace courtmere {

struct Session;
struct GameRequest;
class LiveScreen;
class RecruitingWeek;
class SeasonHistory;
class SeasonObserver;

// Plays one game: RunEngine, unless a test puts its own in place.
using GameRunner = std::function<int(Game&, DayResults&, const GameRequest&, std::string& boxFile,
                                     std::string& gameLogFile)>;

struct SeasonRun {
  // `liveScreen` is the desktop's live game screen; null headless.
  explicit SeasonRun(Session& session, LiveScreen* liveScreen = nullptr);

  Session& session;
  RecruitingWeek* recruiting;
  SeasonHistory* history;
  SeasonObserver* observer = nullptr;  // null headless: no ticker, no wait
  GameRunner runGame;

  Game game;
  DayResults day;
  DayScreen screen;
  // The conferences whose games this step has played (at most 10).
  std::vector<std::string> played;
  bool autoSim = false;
  // Sim Day with the user's coaches' roles and depth chart set by the
  // computer's routines before the guards, as under the auto-sim: for a
  // front end without the staff and depth-chart screens (the command-line
  // tool).
  bool cpuSetsUserTeam = false;
  // Runs at the end of each day step, inside its transaction: the command-
  // line tool writes the season's figures there, so that a stored day never
  // lacks them.
  std::function<void(Session&)> keepWithDay;
  // The window's caption as the last week's end set it; empty until one
  // does, when the gate's title stands.
  std::string caption;
};

}  // namespace courtmere
