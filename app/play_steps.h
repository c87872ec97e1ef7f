// A user's steps through the main window, as the screenshot tour and the
// window tests play them: each opens the screen a user would open and
// presses the buttons he would press, nothing behind his back.
#pragma once

#include <string>

namespace courtmere {
class ScriptedUi;
struct Session;
}  // namespace courtmere

namespace courtmere::app {

class MainWindow;
class SimGamesScreen;

// Lets closed windows go and queued calls run.
void SettleEvents();

// The first open screen of a class.
template <class T>
T* FindScreen(MainWindow& window);

// Management > Team Roster, Computer Set Lineup, Yes.
bool LetComputerSetLineup(MainWindow& window, ScriptedUi& ui);

// Staff > View Coaches, Change Roles: the coach on line `offence` runs the
// offense, the one on line `defence` the defense; Submit. True when saved.
bool AssignCoachRoles(MainWindow& window, size_t offence, size_t defence);

// File > Dynasty Options with the score ticker at the value of its list with
// the shortest pause; Submit.
void ChooseQuickestTicker(Session& session, MainWindow& window);

// Sim Day on the screen; when the depth chart is refused (a man hurt or
// suspended since it was set), the computer sets the lineup and the day is
// pressed again. True when the day was played.
bool SimDayAsUser(MainWindow& window, ScriptedUi& ui, SimGamesScreen& games);

}  // namespace courtmere::app

#include "app/main_window.h"

template <class T>
T* courtmere::app::FindScreen(MainWindow& window) {
  for (Screen* screen : window.Screens()) {
    if (auto* found = qobject_cast<T*>(screen)) return found;
  }
  return nullptr;
}
