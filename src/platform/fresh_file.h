// Files that the program writes anew each time (box scores, game logs).
#pragma once

#include <filesystem>

namespace courtmere {

// Removes a file that is about to be written anew; nothing happens when it
// does not exist. A file truncated and written again is flushed to disk when
// it closes (the file system's guard for programs that replace files in
// place), which costs a disk write per file; a new file is not.
void RemoveOldFile(const std::filesystem::path& file);

}  // namespace courtmere
