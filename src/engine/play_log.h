// Posting of play-by-play lines, and the game log file they end up in.
#pragma once

#include <string>
#include <string_view>

#include "engine/game_model.h"

namespace courtmere {

// True when a line of `kind` must fill empty floor slots.
inline bool NeedsFill(const Game& game, PlayKind kind) {
  return kind != PlayKind::Foul && !(game.Home().FloorFull() && game.Away().FloorFull());
}

// The part of PostPlay that only some lines need: the log line, the live
// screen, and the fill.
void ShowAndFill(Game& game, std::string_view text, PlayKind kind);

// Posts one line. Turns a pending timeout request into a due one, raises a
// negative clock or shot clock to 0, shows the line on a watched live screen,
// fills any empty floor slot (except after a "Foul" line, whose caller finds
// the replacement itself) and, when a log is written, adds the log line.
// `text` may be empty when the game wants no texts.
// Inline: the possession loop posts some 950 lines a game, and most of them
// need neither text nor a fill.
inline void PostPlay(Game& game, std::string_view text, PlayKind kind) {
  if (game.UserTimeoutAsked == 1) game.UserTimeoutDue = 1;
  if (game.Clock < 0) game.Clock = 0;
  if (game.ShotClock < 0) game.ShotClock = 0;
  if (game.WantsText() || NeedsFill(game, kind)) ShowAndFill(game, text, kind);
}

// Posts a line whose text is built only when someone will read it.
template <class MakeText>
void PostPlayWith(Game& game, PlayKind kind, MakeText&& makeText) {
  if (game.WantsText()) {
    const std::string text = makeText();
    PostPlay(game, text, kind);
  } else {
    PostPlay(game, std::string_view(), kind);
  }
}

// The log line of a play: half, clock, shot clock, the body, padded with
// blanks to 96 characters, then the score.
std::string FormatLogLine(const Game& game, std::string_view body);
// The same for a line of `kind` with its text and the name of its man.
std::string FormatLogLine(const Game& game, PlayKind kind, std::string_view text,
                          std::string_view name);

// The same, written over `line`, whose storage it reuses.
void FormatLogLineInto(std::string& line, const Game& game, PlayKind kind, std::string_view text,
                       std::string_view name);

// A blank line added to the period's lines (GameLogLines up to LogCount).
// Lines past LogCount are kept from earlier periods so that their storage
// serves again.
std::string& NewLogLine(Game& game);

// The game log: its heading at the start of a game, one block per period
// that has lines, and the file written whole at the end of the game (or of
// what was played of it).
void StartGameLog(Game& game);
void AppendPeriodLog(Game& game);
void FinishGameLog(Game& game);

// Empties the current period's lines (LogCount goes to 0).
void ResetPeriodLines(Game& game);

}  // namespace courtmere
