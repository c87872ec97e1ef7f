// The live screen's state file: who is on the floor, the bench, the reserve
// queue and every statistics line's fouls and energy.
#pragma once

#include <filesystem>
#include <string>

#include "engine/game_model.h"

namespace courtmere {

// The text of the state file.
std::string DebugDumpText(const Game& game);

// Writes the state file into the program folder and tells the user its
// name; returns its path.
std::filesystem::path DebugDump(Game& game);

}  // namespace courtmere
