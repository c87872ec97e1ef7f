// What the benchmark commands share: a signature of their results and a
// scratch program folder.
#pragma once

#include <fmt/format.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace courtmere::cli {

// FNV-1a over the results.
class Signature {
 public:
  void Add(std::string_view text) {
    for (unsigned char c : text) {
      hash_ ^= c;
      hash_ *= 1099511628211ULL;
    }
    hash_ ^= '\n';
    hash_ *= 1099511628211ULL;
  }
  uint64_t Value() const { return hash_; }

 private:
  uint64_t hash_ = 14695981039346656037ULL;
};

// A fresh program folder in the temporary directory, removed afterwards.
class ScratchFolder {
 public:
  ScratchFolder() {
    path_ = std::filesystem::temp_directory_path() /
            fmt::format("courtmere-bench-{}",
                        std::chrono::steady_clock::now().time_since_epoch().count());
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace courtmere::cli
