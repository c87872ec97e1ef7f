#include "platform/program_folder.h"

#include <cstdlib>
#include <string>

namespace courtmere {

ProgramFolder::ProgramFolder(std::filesystem::path root) : root_(std::move(root)) {
  std::filesystem::create_directories(root_);
}

std::filesystem::path ProgramFolder::DefaultRoot() {
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg != '\0') {
    return std::filesystem::path(xdg) / "courtmere";
  }
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home != nullptr ? home : ".") / ".local" / "share" / "courtmere";
}

std::filesystem::path ProgramFolder::Path(std::string_view gameName) const {
  std::filesystem::path result = root_;
  std::string part;
  for (char c : gameName) {
    if (c == '\\' || c == '/') {
      if (!part.empty()) result /= part;
      part.clear();
    } else {
      part += c;
    }
  }
  if (!part.empty()) result /= part;
  return result;
}

std::filesystem::path ProgramFolder::EnsureFolder(std::string_view gameName) const {
  std::filesystem::path folder = Path(gameName);
  std::filesystem::create_directories(folder);
  return folder;
}

}  // namespace courtmere
