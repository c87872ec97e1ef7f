// A league whose data no schedule can be built from: a conference with a
// schedule type the program does not know, or with a different number of
// schools than its template has slots.
#pragma once

#include <stdexcept>
#include <string>

namespace courtmere {

class ScheduleError : public std::runtime_error {
 public:
  explicit ScheduleError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace courtmere
