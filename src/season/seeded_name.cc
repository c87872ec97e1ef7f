#include "season/seeded_name.h"

#include <cctype>

namespace courtmere {

SeededName SplitSeed(std::string_view name) {
  size_t digits = 0;
  while (digits < name.size() && std::isdigit(static_cast<unsigned char>(name[digits]))) ++digits;
  if (digits == 0 || name.substr(digits, 2) != ". ") return {0, std::string(name)};
  return {std::stoi(std::string(name.substr(0, digits))), std::string(name.substr(digits + 2))};
}

}  // namespace courtmere
