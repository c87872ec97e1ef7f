#include "screens/live_console.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <istream>
#include <ostream>
#include <sstream>

#include "people/player.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string w; in >> w;) words.push_back(w);
  return words;
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// The rest of the line after its first word: a choice may hold blanks
// ("Up Beat").
std::string Rest(const std::string& line) {
  const size_t start = line.find_first_not_of(" \t");
  const size_t gap = line.find_first_of(" \t", start);
  if (gap == std::string::npos) return "";
  const size_t value = line.find_first_not_of(" \t", gap);
  if (value == std::string::npos) return "";
  const size_t end = line.find_last_not_of(" \t\r");
  return line.substr(value, end - value + 1);
}

template <class Choices>
std::optional<std::string> Choice(const Choices& choices, const std::string& value) {
  for (const auto& c : choices) {
    if (Lower(std::string(c)) == Lower(value)) return std::string(c);
  }
  return std::nullopt;
}

template <class Choices>
std::string ChoiceList(const Choices& choices) {
  std::string list;
  for (const auto& c : choices) list += (list.empty() ? "" : ", ") + std::string(c);
  return list;
}

// "at HALF MM:SS" or "at halftime".
bool ParseMoment(const std::vector<std::string>& words, int& half, int& clock, bool& halftime) {
  if (words.size() == 2 && Lower(words[1]) == "halftime") {
    halftime = true;
    return true;
  }
  int minutes = 0;
  int seconds = 0;
  char colon = 0;
  if (words.size() != 3) return false;
  std::istringstream time(words[2]);
  if (!(time >> minutes >> colon >> seconds) || colon != ':') return false;
  half = std::atoi(words[1].c_str());
  clock = minutes * 60 + seconds;
  return half >= 1;
}

}  // namespace

LiveConsole::LiveConsole(std::istream& commands, std::ostream& out, Options options)
    : commands_(commands), out_(out), options_(std::move(options)) {}

double LiveConsole::LineDelay(int speed) {
  if (speed <= 0) return 0;
  return speed < 6 ? speed / 12.0 : speed / 7.0;
}

// --- The engine's calls ---------------------------------------------------

void LiveConsole::PrepareGame(Game& game) {
  FillFloorBoxes(game, boxes_);
  endgameTold_ = false;
  out_ << game.Away().School << " at " << game.Home().School << "\n";
  PrintFloor(game);
  Say("Commands: timeout, sub OUT IN, tempo, offence, defence, press, gameplan, pause, go, "
      "exit. go starts the game.");
  game.SubWindow = 1;
  game.Resume = 0;
  Wait(game);
}

void LiveConsole::ShowPlay(Game& game, PlayKind kind, std::string_view, std::string_view listLine) {
  if (EndgameOpen(game) && !endgameTold_) {
    endgameTold_ = true;
    Say("The end game is yours to run: endgame PACE SHOT (pace Quick, Normal, Slow; shot Two, "
        "Normal, Three)");
  }
  const std::string stop = StopLine(game, kind);
  if (!stop.empty()) PrintLine(game, stop);
  // At the user's timeout, the floor he may change.
  if (kind == PlayKind::TimeoutTeam) PrintFloor(game);
  if (kind == PlayKind::Halftime) atHalftime_ = true;
  options_.sleep(LineDelay(options_.speed));
  TakeCommands(game, false);
  if (game.Live() && (game.Resume == 0 || game.SubForced == 1)) Wait(game);
  atHalftime_ = false;
  // Left to the computer: the screen shows nothing more.
  if (!game.Live()) return;
  if (!listLine.empty()) PrintLine(game, std::string(listLine));
}

void LiveConsole::Halftime(Game& game) {
  FillFloorBoxes(game, boxes_);
}

void LiveConsole::WaitForResume(Game& game) {
  if (game.Resume == 0) Wait(game);
}

void LiveConsole::PlayerMustLeave(Game& game, bool fouledOut) {
  Say(ForcedSubMessage(fouledOut));
  PrintFloor(game);
  // The lineup is shown: the game holds there.
  game.Resume = 0;
}

void LiveConsole::OpenSubstitutions(Game& game) {
  game.UserSubAsked = 0;
  game.Resume = 0;
  PrintFloor(game);
}

void LiveConsole::ShowSubs(Game& game) {
  for (const std::string& line : SubLines(game, boxes_)) PrintLine(game, line);
}

void LiveConsole::ShowFinal(Game& game) {
  out_ << fmt::format("Final: {} {}, {} {}\n", game.Away().School, game.Away().Score,
                      game.Home().School, game.Home().Score);
}

void LiveConsole::Finish(Game&) {
  pendingSubs_.clear();
}

// --- Commands -------------------------------------------------------------

std::optional<std::string> LiveConsole::ReadLine(bool waiting) {
  if (held_) {
    std::optional<std::string> line = std::move(held_);
    held_.reset();
    return line;
  }
  if (inputEnded_ || (!waiting && !options_.ready())) return std::nullopt;
  std::string line;
  if (!std::getline(commands_, line)) {
    inputEnded_ = true;
    return std::nullopt;
  }
  return line;
}

bool LiveConsole::Due(const Game& game, const Moment& m) const {
  if (m.halftime) return atHalftime_ || game.Half >= 2;
  return game.Half > m.half || (game.Half == m.half && game.Clock <= m.clock);
}

std::optional<std::string> LiveConsole::NextDue(const Game& game, bool waiting) {
  for (;;) {
    if (holdUntil_) {
      if (!Due(game, *holdUntil_)) return std::nullopt;
      holdUntil_.reset();
    }
    std::optional<std::string> line = ReadLine(waiting);
    if (!line) return std::nullopt;
    const std::vector<std::string> words = Words(*line);
    if (words.empty() || words[0][0] == '#') continue;
    if (Lower(words[0]) != "at") return line;
    Moment m;
    if (!ParseMoment(words, m.half, m.clock, m.halftime)) {
      Say("Not a moment of the game: " + *line + " (at HALF MM:SS, or at halftime)");
      continue;
    }
    holdUntil_ = m;
  }
}

void LiveConsole::TakeCommands(Game& game, bool waiting) {
  while (game.Live()) {
    const std::optional<std::string> line = NextDue(game, waiting);
    if (!line) return;
    if (Run(game, *line, waiting) && waiting) return;
  }
}

void LiveConsole::Wait(Game& game) {
  if (UpdateOpen(game)) ApplyPendingSubs(game);
  TakeCommands(game, true);
  // Nothing more to wait for: the game goes on, as "go" would.
  if (game.Resume == 0) PressStart(game);
  game.SubForced = 0;
}

bool LiveConsole::Run(Game& game, const std::string& line, bool waiting) {
  const std::vector<std::string> words = Words(line);
  const std::string command = Lower(words[0]);
  if (command == "go") {
    game.SubForced = 0;
    if (game.Resume == 0) PressStart(game);
    return true;
  }
  if (command == "pause") {
    game.Resume = 0;
    return false;
  }
  if (command == "exit") {
    PressExit(game);
    return true;
  }
  if (command == "timeout") {
    Say(PressTimeout(game).message);
  } else if (command == "sub" && words.size() == 3) {
    Sub(game, words[1], words[2], waiting);
  } else if (command == "endgame") {
    Endgame(game, words);
  } else if (command == "gameplan") {
    Gameplan plan = CurrentGameplan(game);
    for (int slot = 1; slot <= 5; ++slot) plan.ids[slot - 1] = UserTeam(game).Court[slot].Id;
    Say(SaveGameplan(*game.session, UserTeam(game).School, plan));
  } else if (!Tactic(game, command, Rest(line))) {
    Say("Unknown command: " + line +
        " (timeout, sub OUT IN, tempo, offence, defence, press, endgame, gameplan, pause, go, "
        "exit)");
  }
  return false;
}

bool LiveConsole::Tactic(Game& game, const std::string& what, const std::string& value) {
  auto set = [&](const auto& choices, void (*choose)(Game&, const std::string&), const char* name) {
    if (const auto choice = Choice(choices, value)) {
      choose(game, *choice);
    } else {
      Say(fmt::format("The {} is one of {}", name, ChoiceList(choices)));
    }
    return true;
  };
  if (what == "tempo") return set(kTempoChoices, ChooseTempo, "tempo");
  if (what == "offence") return set(kOffenseChoices, ChooseOffence, "offence");
  if (what == "defence") return set(kDefenseChoices, ChooseDefence, "defence");
  if (what == "press") return set(kPressChoices, ChoosePress, "press");
  return false;
}

void LiveConsole::Endgame(Game& game, const std::vector<std::string>& words) {
  // The end-game controls open with the last three minutes.
  if (!EndgameOpen(game)) {
    Say("The end-game controls open in the last three minutes of the second half.");
    return;
  }
  if (words.size() == 2 && Lower(words[1]) == "off") {
    CoachEndgame(game, false, "", "");
    return;
  }
  const auto pace = words.size() == 3 ? Choice(kPaceChoices, words[1]) : std::nullopt;
  const auto shot = words.size() == 3 ? Choice(kShotChoices, words[2]) : std::nullopt;
  if (!pace || !shot) {
    Say("endgame PACE SHOT: pace " + ChoiceList(kPaceChoices) + "; shot " +
        ChoiceList(kShotChoices));
    return;
  }
  CoachEndgame(game, true, *pace, *shot);
}

std::optional<int> LiveConsole::FindMan(const Game& game, const std::string& word) const {
  const GameSide& team = game.SideOf(UserSideOf(game));
  const bool number = std::all_of(word.begin(), word.end(), [](char c) { return std::isdigit(c); });
  for (int i = 1; i <= team.RosterCount; ++i) {
    const PlayerTexts& t = team.Texts[i];
    const std::string last = t.Name.substr(t.Name.find_last_of(' ') + 1);
    if (number ? std::to_string(team.Roster[i].Id) == word
               : Lower(t.AbbrName) == Lower(word) || Lower(last) == Lower(word)) {
      return team.Roster[i].Id;
    }
  }
  return std::nullopt;
}

void LiveConsole::Sub(Game& game, const std::string& out, const std::string& in, bool waiting) {
  const std::optional<int> outId = FindMan(game, out);
  const std::optional<int> inId = FindMan(game, in);
  if (!outId || !inId) {
    Say("No man of your team is called " + (!outId ? out : in));
    return;
  }
  pendingSubs_.emplace_back(*outId, *inId);
  if (waiting && UpdateOpen(game)) {
    ApplyPendingSubs(game);
  } else {
    Say(PressSub(game).message);
  }
}

void LiveConsole::ApplyPendingSubs(Game& game) {
  if (pendingSubs_.empty()) return;
  const GameSide& team = UserTeam(game);
  std::array<int, 5> starters{};
  for (int slot = 1; slot <= 5; ++slot) starters[slot - 1] = team.Court[slot].Id;
  for (const auto& [out, in] : pendingSubs_) {
    std::replace(starters.begin(), starters.end(), out, in);
  }
  pendingSubs_.clear();
  Say(UpdateLineup(game, starters).message);
  ShowSubs(game);
}

// --- Output ---------------------------------------------------------------

void LiveConsole::Say(const std::string& message) {
  if (!message.empty()) out_ << "> " << message << "\n";
}

void LiveConsole::PrintFloor(const Game& game) {
  for (const GameSide& team : game.sides) {
    out_ << team.School << ":";
    for (int slot = 1; slot <= 5; ++slot) {
      const GamePlayer& man = team.Court[slot];
      const GameStat* line = team.StatOf(man);
      out_ << fmt::format("  {} {} ({}, {} fouls{})", man.Id, team.TextsOf(man).AbbrName,
                          PositionName(slot), line ? line->Fouls : 0,
                          line && LooksTired(game, line->Energy) ? ", tired" : "");
    }
    out_ << "\n";
  }
  out_ << fmt::format("Timeouts left: {} {}, {} {}\n", game.Home().School, game.Home().TimeoutsLeft,
                      game.Away().School, game.Away().TimeoutsLeft);
}

void LiveConsole::PrintLine(const Game& game, const std::string& line) {
  const int clock = std::max(game.Clock, 0);
  out_ << fmt::format("{} {:02}:{:02}  {:<72} {}-{}\n", game.Half, clock / 60, clock % 60, line,
                      game.Home().Score, game.Away().Score);
}

}  // namespace courtmere
