// The command-line tool's one way to refuse: a command (or anything it
// calls) throws a Refusal; main() prints its message, when there is one, on
// standard error and ends the tool with status 2.
#pragma once

#include <string>
#include <utility>

namespace courtmere::cli {

// An empty message means the program has already said why (through its Ui).
struct Refusal {
  Refusal() = default;
  explicit Refusal(std::string text) : message(std::move(text)) {}
  std::string message;
};

// Refuses with the program's message.
[[noreturn]] inline void Refuse(std::string message) {
  throw Refusal(std::move(message));
}

}  // namespace courtmere::cli
