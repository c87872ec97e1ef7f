#include "save_game_path.h"

namespace courtmere::cli {

std::filesystem::path SaveGamePath(const Session& session, const std::string& name) {
  const std::filesystem::path path(name);
  if (path.has_parent_path()) return path;
  return session.folder.EnsureFolder("\\SaveGame\\") / path;
}

}  // namespace courtmere::cli
