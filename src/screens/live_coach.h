// The controls of the live game screen as operations on the running game.
//
// A control never reaches into the engine: it sets a handshake flag or a
// value of the user's side in the `Game`, and the engine looks at it at its
// fixed points (the next line, the next dead ball, the next stop). Every
// front end (the desktop window, the command-line tool) calls these, so both
// obey the same rules and show the same messages.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/game_model.h"
#include "screens/roster_view.h"

namespace courtmere {

struct Session;

// The combo boxes' contents: the tactics' as on the roster screen, and the
// end game's.
inline constexpr std::array<const char*, 3> kPaceChoices = {"Quick", "Normal", "Slow"};
inline constexpr std::array<const char*, 3> kShotChoices = {"Two", "Normal", "Three"};

// What a pressed control answers: a message box (empty: none) and whether
// the control is to be disabled.
struct LiveReply {
  std::string message;
  bool disable = false;
};

// The user's side; a live game always has one.
Side UserSideOf(const Game& game);
GameSide& UserTeam(Game& game);

// cmdStart: goes on when paused, pauses when running; closes the window of
// changes the game opened with.
void PressStart(Game& game);
// cmdExit: the rest of the game runs unattended.
void PressExit(Game& game);
// cmdTimeout: asks for a timeout at the next opportunity, while any is left.
LiveReply PressTimeout(Game& game);
// cmdSub: asks for a stop at which the lineup may be changed.
LiveReply PressSub(Game& game);

// The tactic combos: each writes the user's side's text, used from the next
// time the rules read it.
void ChooseTempo(Game& game, const std::string& text);
void ChooseOffence(Game& game, const std::string& text);
void ChooseDefence(Game& game, const std::string& text);
void ChoosePress(Game& game, const std::string& text);

// The end game: the last three minutes of the second half or overtime.
bool EndgameOpen(const Game& game);
int PaceValue(const std::string& text);      // "Normal" 0, "Quick" 1, else 2
int ShotNeedValue(const std::string& text);  // "Normal" 0, "Two" 2, else 3
std::string PaceText(int pace);
std::string ShotNeedText(int shotNeed);
// chkCoach: ticked, the user runs his side's end game with these settings;
// not ticked, the computer does.
void CoachEndgame(Game& game, bool coach, const std::string& pace, const std::string& shot);

// The tired mark the screen shows beside a man: a display rule of its own.
bool LooksTired(const Game& game, int energy);

// The list line a stop adds before its own line: halftime, an official's
// timeout, the user's timeout; empty for any other kind.
std::string StopLine(const Game& game, PlayKind kind);

// The names the screen's lineup boxes hold, slots 1 to 5 of each side.
struct FloorBoxes {
  std::array<std::array<int, 6>, 2> ids{};
  std::array<std::array<std::string, 6>, 2> names;
};
// Puts the floor's men in the boxes, with no lines.
void FillFloorBoxes(const Game& game, FloorBoxes& boxes);
// After a floor check: a list line for each box whose man has changed,
// "<SCHOOL> SUB  -  <new> in for <old>", and the box takes the new man.
std::vector<std::string> SubLines(const Game& game, FloorBoxes& boxes);

// The box of a forced substitution.
std::string ForcedSubMessage(bool fouledOut);

// cmdUpdate may be pressed now.
bool UpdateOpen(const Game& game);
// cmdUpdate: `starters` are the five men the user lists for slots 1 to 5
// (by Id). Refuses a change of the free-throw shooter and a man listed
// twice; else brings each listed man in from the bench or the reserve.
LiveReply UpdateLineup(Game& game, const std::array<int, 5>& starters);

// cmdGameplan: the user's depth chart (PG1, SG1, ..., C1, then the second
// and third rows) and tactics, saved for the next half or game. The
// message tells what was saved or what to correct.
struct Gameplan {
  std::array<int, 15> ids{};
  std::string tempo, offence, defence, press;
};
std::string GameplanProblem(const Gameplan& plan);
std::string SaveGameplan(Session& session, const std::string& school, const Gameplan& plan);
// The user's side's depth chart and tactics as the game holds them.
Gameplan CurrentGameplan(const Game& game);

// One row of the lineup tab's grid.
struct LiveLineupRow {
  int id = 0;
  std::vector<std::string> cells;  // kLineupColumns
};
inline constexpr std::array<const char*, 14> kLineupColumns = {
    "Name",   "Pos",  "Ht",    "Year", "Score", "Threes", "Perr D",
    "Post D", "Pass", "Hands", "Rebs", "Pot",   "End",    "Tired"};
// Every dressed man of a side: grades from the store, energy from the game.
std::vector<LiveLineupRow> LineupRows(Session& session, const Game& game, Side side);

// A depth-chart combo's entries: the side's men who may play (health
// "Good", not suspended, not redshirting), by Id and short name.
struct LineupChoice {
  int id = 0;
  std::string name;
};
std::vector<LineupChoice> LineupChoices(Session& session, const Game& game, Side side);

}  // namespace courtmere
