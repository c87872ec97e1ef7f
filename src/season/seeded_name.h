// A side's name in a national-tournament row: "<seed>. <school>". Other
// rows hold the school alone.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

struct SeededName {
  int seed = 0;  // 0 for a name without a seed
  std::string school;
};

// Splits "12. Gonzaga" into 12 and "Gonzaga"; a name that does not begin
// with a number and ". " is the school alone.
SeededName SplitSeed(std::string_view name);

}  // namespace courtmere
