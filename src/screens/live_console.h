// The live game screen as a text console: the play-by-play printed at the
// pace of a speed setting, and the user's commands read one per line, each
// applied at the next point the game allows it.
//
// Commands: "timeout", "sub OUT IN" (a man by Id or short name), "tempo T",
// "offence O", "defence D", "press P", "endgame PACE SHOT" or "endgame off"
// (the last three minutes only), "pause", "go", "exit". A script may also
// hold its next commands until a moment of the game: "at HALF MM:SS" (half 3
// and on are the overtimes), so that a script replays the same game the same
// way. Blank lines and lines starting with "#" are skipped.
//
// While the game runs, commands are taken only when `ready` says a line is
// waiting (a terminal's input is not waited for); at a stop (before the tip,
// a timeout, halftime, a forced substitution, "pause") the console waits for
// lines until "go". The end of the input, or a line held for a later moment,
// goes on as "go" would: a game never waits for input that cannot come.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "engine/live_screen.h"
#include "screens/live_coach.h"

namespace courtmere {

struct Session;

class LiveConsole : public LiveScreen {
 public:
  struct Options {
    int speed = 0;  // the slider's value: 0 no delay
    std::function<bool()> ready = [] { return true; };
    std::function<void(double seconds)> sleep = [](double) {};
    bool autoSubstitution = false;
  };

  LiveConsole(std::istream& commands, std::ostream& out, Options options);

  // The delay of every line for the slider's value v: v / 12 seconds below
  // 6, v / 7 seconds from there.
  static double LineDelay(int speed);

  void PrepareGame(Game& game) override;
  void ShowPlay(Game& game, PlayKind kind, std::string_view text,
                std::string_view listLine) override;
  void Halftime(Game& game) override;
  void WaitForResume(Game& game) override;
  void PlayerMustLeave(Game& game, bool fouledOut) override;
  void OpenSubstitutions(Game& game) override;
  void ShowSubs(Game& game) override;
  bool AutoSubstitution() const override { return options_.autoSubstitution; }
  void ShowFinal(Game& game) override;
  void Finish(Game& game) override;

 private:
  // A moment the next commands wait for: half and clock, or halftime.
  struct Moment {
    int half = 0;
    int clock = 0;
    bool halftime = false;
  };
  // The next command line due now; nothing when none is (the input ended,
  // is not ready, or holds its next line for a later moment).
  std::optional<std::string> NextDue(const Game& game, bool waiting);
  bool Due(const Game& game, const Moment& moment) const;
  std::optional<std::string> ReadLine(bool waiting);
  // Runs the commands due; while waiting, until one goes on.
  void TakeCommands(Game& game, bool waiting);
  // Runs one command; true when it ends a wait.
  bool Run(Game& game, const std::string& line, bool waiting);
  void Sub(Game& game, const std::string& out, const std::string& in, bool waiting);
  void Endgame(Game& game, const std::vector<std::string>& words);
  bool Tactic(Game& game, const std::string& what, const std::string& value);
  // The lineup changes asked for while the game ran, applied at a stop.
  void ApplyPendingSubs(Game& game);
  void Wait(Game& game);
  void Say(const std::string& message);
  void PrintFloor(const Game& game);
  void PrintLine(const Game& game, const std::string& line);
  std::optional<int> FindMan(const Game& game, const std::string& word) const;

  std::istream& commands_;
  std::ostream& out_;
  Options options_;
  bool inputEnded_ = false;
  bool endgameTold_ = false;
  std::optional<std::string> held_;  // a line read but not yet due
  std::optional<Moment> holdUntil_;
  bool atHalftime_ = false;
  std::vector<std::pair<int, int>> pendingSubs_;  // out, in
  FloorBoxes boxes_;
};

}  // namespace courtmere
