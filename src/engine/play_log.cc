#include "engine/play_log.h"

#include <algorithm>
#include <cctype>
#include <fstream>

#include "engine/engine_error.h"
#include "engine/live_screen.h"
#include "engine/substitution.h"

namespace courtmere {

namespace {

constexpr size_t kLogWidth = 96;

void AppendTwoDigits(std::string& out, int value) {
  if (value >= 0 && value < 100) {
    out += static_cast<char>('0' + value / 10);
    out += static_cast<char>('0' + value % 10);
  } else {
    out += std::to_string(value);
  }
}

std::string Upper(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

// The side whose man a line names: the offence for "Offense" and "Pass"
// lines, the defence for every other kind.
Side LineSide(const Game& game, PlayKind kind) {
  return (kind == PlayKind::Offense || kind == PlayKind::Pass) ? game.Possession
                                                               : OtherSide(game.Possession);
}

void AppendBody(std::string& out, PlayKind kind, std::string_view text, std::string_view name) {
  if (kind == PlayKind::Pass) {
    out.append(text).append(" ").append(name);
  } else if (kind == PlayKind::Foul) {
    out.append(text);
  } else {
    out.append(name).append(" ").append(text);
  }
}

std::string Body(PlayKind kind, std::string_view text, std::string_view name) {
  std::string body;
  AppendBody(body, kind, text, name);
  return body;
}

std::string ListLine(PlayKind kind, std::string_view label, std::string_view text,
                     std::string_view name) {
  if (kind == PlayKind::Subs) return {};
  std::string line(label);
  line += "   ";
  line += Body(kind, text, name);
  return line;
}

void ShowOnScreen(Game& game, std::string_view text, PlayKind kind, std::string_view name,
                  Side side) {
  std::string label(1, '(');
  label += Upper(game.SideOf(side).Team().TeamName);
  label += ')';
  game.screen->ShowPlay(game, kind, text, ListLine(kind, label, text, name));
}

void FillEmptySlots(Game& game) {
  for (int slot = 1; slot <= 5; ++slot) {
    for (Side side : {Side::Home, Side::Away}) {
      // Design decision: the energy floor for this emergency fill is 0, so
      // anyone fit to play is taken.
      if (game.SideOf(side).Court[slot].Id == 0) SubstitutePlayer(game, slot, side, 0);
    }
  }
}

}  // namespace

std::string FormatLogLine(const Game& game, std::string_view body) {
  return FormatLogLine(game, PlayKind::Foul, body, {});
}

std::string FormatLogLine(const Game& game, PlayKind kind, std::string_view text,
                          std::string_view name) {
  std::string line;
  line.reserve(kLogWidth + 16);
  line += std::to_string(game.Half);
  line += " - ";
  AppendTwoDigits(line, game.Clock / 60);
  line += ':';
  AppendTwoDigits(line, game.Clock % 60);
  line += " - ";
  AppendTwoDigits(line, game.ShotClock);
  line += ": ";
  AppendBody(line, kind, text, name);
  // A line longer than the width keeps its text and is not cut.
  if (line.size() < kLogWidth) line.append(kLogWidth - line.size(), ' ');
  line += std::to_string(game.Home().Score);
  line += " - ";
  line += std::to_string(game.Away().Score);
  return line;
}

void PostPlay(Game& game, std::string_view text, PlayKind kind) {
  if (game.UserTimeoutAsked == 1) game.UserTimeoutDue = 1;
  game.Clock = std::max(game.Clock, 0);
  game.ShotClock = std::max(game.ShotClock, 0);

  if (game.WantsText()) {
    const Side side = LineSide(game, kind);
    const std::string& name = game.SideOf(side).Court[game.BallPos].AbbrName;
    // The log line is made first: neither the live screen nor the fill
    // changes the clock, the score or the man it names.
    if (game.WriteLog && kind != PlayKind::Subs) {
      game.GameLogLines.push_back(FormatLogLine(game, kind, text, name));
      ++game.LogCount;
    }
    if (game.Live()) ShowOnScreen(game, text, kind, name, side);
  }
  if (kind != PlayKind::Foul) FillEmptySlots(game);
}

void ResetPeriodLines(Game& game) {
  game.GameLogLines.clear();
  game.LogCount = 0;
}

void StartGameLog(Game& game) {
  if (!game.WriteLog) return;
  game.GameLogOut.close();
  game.GameLogOut.clear();
  game.GameLogOut.open(game.GameLogFileName, std::ios::binary | std::ios::trunc);
  if (!game.GameLogOut) {
    throw EngineError("cannot create the game log " + game.GameLogFileName.string());
  }
  std::string& text = game.GameLogText;
  text.clear();
  text += game.Away().Team().TeamName;
  text += " at ";
  text += game.Home().Team().TeamName;
  text += "\n\n";
}

void AppendPeriodLog(Game& game) {
  if (!game.WriteLog || game.LogCount == 0) return;
  std::string& text = game.GameLogText;
  const std::string& home = game.Home().Team().TeamName;
  const std::string& away = game.Away().Team().TeamName;
  const long gap = 65 - static_cast<long>(home.size()) - static_cast<long>(away.size());
  text += "Time/ShotClock";
  text.append(15, ' ');
  text += "Action";
  text.append(static_cast<size_t>(std::max(gap, 0L)), ' ');
  text += home;
  text += '-';
  text += away;
  text += '\n';
  for (const std::string& line : game.GameLogLines) {
    text += line;
    text += '\n';
  }
  // The entry at LogCount is always empty: it closes the block.
  text += '\n';
}

void FinishGameLog(Game& game) {
  if (!game.GameLogOut.is_open()) return;
  game.GameLogOut.write(game.GameLogText.data(),
                        static_cast<std::streamsize>(game.GameLogText.size()));
  game.GameLogOut.close();
  game.GameLogText.clear();
}

}  // namespace courtmere
