// Where the save and load commands look for a saved game.
#pragma once

#include <filesystem>
#include <string>

#include "store/session.h"

namespace courtmere::cli {

// A bare name ("spring") means that name in the program folder's SaveGame
// folder, as the desktop program's dialogs start there; a name with a folder
// is taken as it stands.
std::filesystem::path SaveGamePath(const Session& session, const std::string& name);

}  // namespace courtmere::cli
