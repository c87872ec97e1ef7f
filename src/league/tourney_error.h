// A national tournament whose field cannot be drawn from the store: too few
// schools in the poll, or more conference champions than places.
#pragma once

#include <stdexcept>
#include <string>

namespace courtmere {

class TourneyError : public std::runtime_error {
 public:
  explicit TourneyError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace courtmere
