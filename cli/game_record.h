// The game-record commands' shared part: a played game's row found by its
// number, and a file of it printed as the screen shows it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "cli_context.h"

namespace courtmere::cli {

struct PlayedGame {
  std::string table;       // the schedule table that holds the row
  std::string conference;  // the conference of that table; empty for NonConfSchedule
};

// The game numbered `gameNo`, or a message and a Refusal when the season has
// no such game or it has not been played.
PlayedGame RequirePlayedGame(Session& session, int gameNo);

// Prints the file, or refuses with `missing` when there is none.
void PrintGameFile(Session& session, const std::optional<std::filesystem::path>& file,
                   const std::string& missing);

}  // namespace courtmere::cli
