// The live game screen as the engine sees it.
//
// When the user coaches a game, the engine calls these hooks at its live
// points; an unattended game has no screen and the engine never calls them.
// The screen acts only inside these calls: it may pump window events, read
// and change the handshake flags of the `Game` (Resume, SubForced, the
// user's tactics, end-game settings and lineup), and return.
#pragma once

#include <string_view>

#include "engine/game_model.h"

namespace courtmere {

class LiveScreen {
 public:
  virtual ~LiveScreen() = default;

  // Before the tip: show the screen with both lineups and wait for the
  // user's first start.
  virtual void PrepareGame(Game& game) = 0;

  // A posted play line: `text` is the line's own text and `listLine` the
  // line for the play-by-play list (empty for kind "Subs"). The screen
  // pauses by its speed setting and waits while paused or while a forced
  // substitution is pending, then updates clock, scores and lineup boxes.
  virtual void ShowPlay(Game& game, PlayKind kind, std::string_view text,
                        std::string_view listLine) = 0;

  // Halftime has been prepared (timeouts, charts, floor, line posted): reset
  // the screen's half-time boxes.
  virtual void Halftime(Game& game) = 0;

  // Pumps events until the user presses start (Resume not 0).
  virtual void WaitForResume(Game& game) = 0;

  // A man of the user's side fouled out or was hurt and the computer has put
  // in his replacement: show the box and the substitution tab.
  virtual void PlayerMustLeave(Game& game, bool fouledOut) = 0;

  // The user asked for substitutions and play has stopped: show the lineup
  // tab and enable the start button.
  virtual void OpenSubstitutions(Game& game) = 0;

  // After a floor check: list every changed lineup entry.
  virtual void ShowSubs(Game& game) = 0;

  // True when the automatic-substitution box is ticked.
  virtual bool AutoSubstitution() const = 0;

  // After the box score is written: show the final state and wait until the
  // user leaves the screen.
  virtual void ShowFinal(Game& game) = 0;

  // The game is over: re-enable what the live game disabled.
  virtual void Finish(Game& game) = 0;
};

}  // namespace courtmere
