#include "league/seeded_name.h"

#include <fmt/format.h>

#include <cctype>

namespace courtmere {

namespace {

// Seeds run from 1 to 16.
constexpr size_t kMostSeedDigits = 2;

}  // namespace

SeededName SeededName::Parse(std::string_view name) {
  size_t digits = 0;
  while (digits < name.size() && std::isdigit(static_cast<unsigned char>(name[digits]))) ++digits;
  if (digits == 0 || digits > kMostSeedDigits || name.substr(digits, 2) != ". ") {
    return {0, std::string(name)};
  }
  return {std::stoi(std::string(name.substr(0, digits))), std::string(name.substr(digits + 2))};
}

std::string SeededName::Text() const {
  return seed > 0 ? fmt::format("{}. {}", seed, school) : school;
}

}  // namespace courtmere
