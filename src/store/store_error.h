// The error a store operation throws when the file can't serve as a store.
#pragma once

#include <stdexcept>
#include <string>

namespace courtmere {

class StoreError : public std::runtime_error {
 public:
  explicit StoreError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace courtmere
