// A side's name in a schedule row of the NCT's first weekend: "<seed>.
// <school>". Every other row, and every bracket slot, holds the school
// alone. A school's name never begins with a number followed by ". ", so
// the two forms cannot be mistaken for each other.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

struct SeededName {
  int seed = 0;  // 0 for a name without a seed
  std::string school;

  // "12. Gonzaga" gives 12 and "Gonzaga"; "76ers. Tech" or "3 Rivers" is a
  // school alone.
  static SeededName Parse(std::string_view name);

  // The name as a row holds it: "12. Gonzaga", or the school without a seed.
  std::string Text() const;
};

}  // namespace courtmere
