// The engine's entry: plays one game between two schools of the store and
// leaves its statistics lines in the day's result tables.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "engine/game_model.h"

namespace courtmere {

struct GameRequest {
  std::string HomeTeam;
  std::string AwayTeam;
  std::string GameType;  // stored with the result; "Conference" counts for conference records
  int BatchIndex = 0;    // slot in the day's result tables, 0 to 150
  int GameNo = 0;        // schedule number, used in the file names
  int Live = 0;          // 1: the user coaches the game on the live screen
  // 1: the game runs unattended until its close finish, which the user then
  // coaches on the live screen (see Game::FinishWatch).
  int CoachFinish = 0;
  int KeepLeaders = 0;  // 1: keep each side's top scorer and rebounder
  int CourtEdge = 0;    // signed advantage of the home side
  // False: write no file at all, not even the box score (benchmarks).
  bool WriteFiles = true;
};

class ProgramFolder;

// The file of a game below the program folder:
// "\log\<kind><gameNo>-<batchIndex>.txt", kind "Box" or "GameLog".
std::filesystem::path GameFilePath(const ProgramFolder& folder, std::string_view kind, int gameNo,
                                   int batchIndex);

// Plays one game on `game` (which it resets first). `boxFile` receives the
// box score's full name; `gameLogFile` is "none" for no play-by-play log,
// anything else for one, and receives the log's full name or "none".
// Returns 1 when the game was played, 0 when it was not: a depth chart the
// repair cannot fill, or an error (both told in a message box).
int RunEngine(Game& game, DayResults& day, const GameRequest& request, std::string& boxFile,
              std::string& gameLogFile);

}  // namespace courtmere
