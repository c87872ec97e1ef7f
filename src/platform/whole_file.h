// Text files that the program writes whole, anew each time (box scores, game
// logs).
#pragma once

#include <filesystem>
#include <string_view>

namespace courtmere {

// Writes `text` as the whole content of `file`, creating it if need be.
// Throws std::system_error when the file cannot be written.
//
// An existing file is written over and then cut to the new length, never
// truncated to nothing first: the file system flushes a file that was
// truncated and written again to disk when it closes (its guard for programs
// that replace files in place), which would cost a disk write per game.
void WriteWholeFile(const std::filesystem::path& file, std::string_view text);

}  // namespace courtmere
