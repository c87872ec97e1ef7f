// The program folder: where the store, saved games, logs and reports live.
//
// The game names its files as paths under the program folder written with
// backslashes ("\mereball.dat", "\SaveGame\AutoSave.CMR", "\log\"). Path()
// maps such a name to a real path under the folder on this machine.
#pragma once

#include <filesystem>
#include <string_view>

namespace courtmere {

class ProgramFolder {
 public:
  explicit ProgramFolder(std::filesystem::path root);

  // The desktop program's folder: $XDG_DATA_HOME/courtmere, or
  // ~/.local/share/courtmere when XDG_DATA_HOME is unset.
  static std::filesystem::path DefaultRoot();

  const std::filesystem::path& Root() const { return root_; }

  // Maps a name such as "\log\game12.txt" to <root>/log/game12.txt.
  std::filesystem::path Path(std::string_view gameName) const;

  // Creates the folder (and its parents) for a name such as "\SaveGame\".
  std::filesystem::path EnsureFolder(std::string_view gameName) const;

  std::filesystem::path Store() const { return Path("\\mereball.dat"); }
  std::filesystem::path Backup() const { return Path("\\mereball.bak"); }
  std::filesystem::path CompactTemp() const { return Path("\\mereballTemp.dat"); }

 private:
  std::filesystem::path root_;
};

}  // namespace courtmere
