#include "people/player.h"

#include <charconv>

namespace courtmere {

const char* PositionName(int position) {
  switch (position) {
    case kPG:
      return "PG";
    case kSG:
      return "SG";
    case kSF:
      return "SF";
    case kPF:
      return "PF";
    default:
      return "C";
  }
}

std::string HeightText(int inches) {
  return std::to_string(inches / 12) + "-" + std::to_string(inches % 12);
}

int HeightInches(const std::string& height) {
  const auto dash = height.find('-');
  if (dash == std::string::npos) return 0;
  int feet = 0;
  int inches = 0;
  const char* begin = height.data();
  if (std::from_chars(begin, begin + dash, feet).ec != std::errc()) return 0;
  if (std::from_chars(begin + dash + 1, begin + height.size(), inches).ec != std::errc()) return 0;
  return feet * 12 + inches;
}

}  // namespace courtmere
