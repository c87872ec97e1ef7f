// The error a game rule raises when the game cannot go on (a missing row,
// a file that cannot be written). The engine's entry points trap it.
#pragma once

#include <stdexcept>
#include <string>

namespace courtmere {

class EngineError : public std::runtime_error {
 public:
  explicit EngineError(const std::string& what, int code = 0)
      : std::runtime_error(what), code_(code) {}
  int Code() const { return code_; }

 private:
  int code_;
};

}  // namespace courtmere
