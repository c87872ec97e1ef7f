#include "support/temp_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace courtmere::testing {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "courtmere-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace courtmere::testing
