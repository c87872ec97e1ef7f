#include "engine/play_log.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "engine/engine_error.h"
#include "engine/live_screen.h"
#include "engine/substitution.h"
#include "platform/whole_file.h"

namespace courtmere {

namespace {

constexpr size_t kLogWidth = 96;

// Writes a number as std::to_string does; room for any int is needed.
char* PutNumber(char* out, int value) {
  return std::to_chars(out, out + 12, value).ptr;
}

// Two digits for 0 to 99, the plain number otherwise.
char* PutTwoDigits(char* out, int value) {
  if (value < 0 || value >= 100) return PutNumber(out, value);
  *out++ = static_cast<char>('0' + value / 10);
  *out++ = static_cast<char>('0' + value % 10);
  return out;
}

char* PutText(char* out, std::string_view text) {
  return std::copy(text.begin(), text.end(), out);
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
  FormatLogLineInto(line, game, kind, text, name);
  return line;
}

void FormatLogLineInto(std::string& line, const Game& game, PlayKind kind, std::string_view text,
                       std::string_view name) {
  // The head and the tail are put together in buffers, the line in one go.
  char head[64];
  char* h = PutNumber(head, game.Half);
  h = PutText(h, " - ");
  h = PutTwoDigits(h, game.Clock / 60);
  *h++ = ':';
  h = PutTwoDigits(h, game.Clock % 60);
  h = PutText(h, " - ");
  h = PutTwoDigits(h, game.ShotClock);
  h = PutText(h, ": ");
  char tail[32];
  char* t = PutNumber(tail, game.Home().Score);
  t = PutText(t, " - ");
  t = PutNumber(t, game.Away().Score);

  line.clear();
  line.reserve(kLogWidth + static_cast<size_t>(h - head) + text.size() + name.size() +
               static_cast<size_t>(t - tail) + 1);
  line.append(head, h);
  AppendBody(line, kind, text, name);
  // A line longer than the width keeps its text and is not cut.
  if (line.size() < kLogWidth) line.append(kLogWidth - line.size(), ' ');
  line.append(tail, t);
}

std::string& NewLogLine(Game& game) {
  std::vector<std::string>& lines = game.GameLogLines;
  if (static_cast<size_t>(game.LogCount) == lines.size()) lines.emplace_back();
  std::string& line = lines[static_cast<size_t>(game.LogCount++)];
  line.clear();
  return line;
}

void ShowAndFill(Game& game, std::string_view text, PlayKind kind) {
  if (game.WantsText()) {
    const Side side = LineSide(game, kind);
    const std::string& name = game.SideOf(side).CourtName(game.BallPos);
    // The log line is made first: neither the live screen nor the fill
    // changes the clock, the score or the man it names.
    if (game.WriteLog && kind != PlayKind::Subs) {
      FormatLogLineInto(NewLogLine(game), game, kind, text, name);
    }
    if (game.Live()) ShowOnScreen(game, text, kind, name, side);
  }
  if (NeedsFill(game, kind)) FillEmptySlots(game);
}

void ResetPeriodLines(Game& game) {
  game.LogCount = 0;
}

void StartGameLog(Game& game) {
  game.GameLogPending = game.WriteLog;
  if (!game.WriteLog) return;
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
  for (int i = 0; i < game.LogCount; ++i) {
    text += game.GameLogLines[static_cast<size_t>(i)];
    text += '\n';
  }
  // The entry at LogCount is always empty: it closes the block.
  text += '\n';
}

void FinishGameLog(Game& game) {
  if (!game.GameLogPending) return;
  game.GameLogPending = false;
  WriteWholeFile(game.GameLogFileName, game.GameLogText);
  game.GameLogText.clear();
}

}  // namespace courtmere
