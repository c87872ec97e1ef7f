// courtmere-cli live GAMENO: Sim Day with the user's game of that number
// coached live in the terminal. The play-by-play is printed at the pace of
// --speed, and commands come from standard input or a script file, one a
// line (see screens/live_console.h). The rest of the day is simulated as Sim
// Day does, and the whole day is one step: an interrupted live game leaves
// the day unplayed.
#include <fmt/format.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <thread>

#include "screens/live_console.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season_command.h"

namespace courtmere::cli {

namespace {

struct LiveOptions {
  int gameNo = 0;
  int speed = 1;
  std::string script;
  bool ownLineup = false;
  bool finishOnly = false;
};

// True when a line of standard input is waiting, so that a running game
// never stops for the keyboard.
bool InputWaiting() {
  if (std::cin.rdbuf()->in_avail() > 0) return true;
  pollfd fd{STDIN_FILENO, POLLIN, 0};
  return poll(&fd, 1, 0) > 0;
}

// The user's game of the day must be the one named, and not yet played.
void RequireUsersGame(Session& session, const DayScreen& screen, int gameNo) {
  if (screen.userPlays && !screen.rows.empty() && screen.rows.front().GameNo == gameNo &&
      !screen.rows.front().Played()) {
    return;
  }
  if (screen.userPlays && !screen.rows.front().Played()) {
    session.ui.Message(fmt::format("Game {} is not your team's game today; yours is game {}.",
                                   gameNo, screen.rows.front().GameNo));
  } else {
    session.ui.Message(fmt::format(
        "Your team has no game to play today (week {}, {}); game {} cannot be coached now.",
        session.config.CurrWeek, session.config.CurrDay, gameNo));
  }
  throw Refusal{};
}

void PrintResult(const DayScreen& screen, int gameNo) {
  for (const DayRow& r : screen.rows) {
    if (r.GameNo != gameNo || !r.Played()) continue;
    fmt::print("Game {}: {} {}, {} {}\n", gameNo, r.HomeShown, r.HomeScore, r.AwayShown,
               r.AwayScore);
  }
}

void RunLive(CliContext& context, const LiveOptions& o) {
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  Session& session = run->session;
  RequireSeasonStage(session);
  if (o.speed < 0 || o.speed > 10) {
    session.ui.Message("The speed is a whole number from 0 (no delay) to 10.");
    throw Refusal{};
  }
  std::ifstream scriptFile;
  if (!o.script.empty()) {
    scriptFile.open(o.script);
    if (!scriptFile) {
      session.ui.Message("The script " + o.script + " cannot be read.");
      throw Refusal{};
    }
  }
  SettleWeekFive(session);
  run->screen = OpenDayScreen(session);
  RequireUsersGame(session, run->screen, o.gameNo);
  // As Sim Day does for this tool (see cmd_sim.cc): the computer sets the
  // user's roles and chart unless he keeps his own.
  run->cpuSetsUserTeam = !o.ownLineup;

  LiveConsole::Options options;
  options.speed = o.speed;
  options.sleep = [](double seconds) {
    if (seconds > 0) std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
  };
  if (o.script.empty()) options.ready = InputWaiting;
  LiveConsole console(o.script.empty() ? std::cin : scriptFile, std::cout, options);
  run->game.screen = &console;
  run->screen.coachGame = !o.finishOnly;
  run->screen.coachFinish = o.finishOnly;
  if (SimDay(*run) != DayOutcome::kPlayed) throw Refusal{};
  PrintResult(run->screen, o.gameNo);
}

}  // namespace

void AddLiveCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<LiveOptions>();
  CLI::App* cmd = app.add_subcommand(
      "live", "Sim Day with your team's game coached live: play-by-play and your commands");
  cmd->add_option("gameno", options->gameNo, "Your game's number (today's)")->required();
  cmd->add_option("--speed", options->speed,
                  "Delay of each line, as the screen's slider: 0 none, 1 to 5 n/12 s, 6 to 10 "
                  "n/7 s (default 1)");
  cmd->add_option("--script", options->script,
                  "Read the commands from this file instead of standard input");
  cmd->add_flag("--finish", options->finishOnly,
                "Coach only the finish: unattended until the last three minutes with the "
                "margin at 8 or less");
  cmd->add_flag("--own-lineup", options->ownLineup,
                "Keep your coaches' roles and depth chart as they stand");
  cmd->callback([&context, options] { RunLive(context, *options); });
}

}  // namespace courtmere::cli
