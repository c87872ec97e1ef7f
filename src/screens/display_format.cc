#include "screens/display_format.h"

#include <fmt/format.h>

#include <cstdlib>

#include "platform/numeric.h"

namespace courtmere {

std::string FormatThousands(int64_t value) {
  std::string digits = std::to_string(value < 0 ? -value : value);
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  std::string out;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return value < 0 ? "-" + out : out;
}

std::string FormatOneDecimal(double value) {
  return fmt::format("{:.1f}", Round(value, 1));
}

std::string FormatPercent(double fraction) {
  return FormatOneDecimal(fraction * 100.0);
}

}  // namespace courtmere
