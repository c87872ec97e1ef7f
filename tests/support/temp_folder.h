// A fresh temporary folder for one test, removed with everything in it when
// the test ends.
#pragma once

#include <filesystem>

namespace courtmere::testing {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace courtmere::testing
