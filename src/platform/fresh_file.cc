#include "platform/fresh_file.h"

#include <system_error>

namespace courtmere {

void RemoveOldFile(const std::filesystem::path& file) {
  // A file that cannot be removed is then truncated by the writer, which
  // reports whatever keeps it from writing.
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
}

}  // namespace courtmere
