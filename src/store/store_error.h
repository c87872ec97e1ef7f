// The error a store operation throws when the file can't serve as a store.
#pragma once

#include <stdexcept>
#include <string>

namespace courtmere {

class StoreError : public std::runtime_error {
 public:
  // `code` is SQLite's primary result code of the failure, 0 when the
  // failure was not SQLite's (a missing file, a store without its Config row).
  explicit StoreError(const std::string& what, int code = 0)
      : std::runtime_error(what), code_(code) {}

  int Code() const { return code_; }

 private:
  int code_;
};

}  // namespace courtmere
