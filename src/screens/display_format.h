// How the screens write numbers.
#pragma once

#include <cstdint>
#include <string>

namespace courtmere {

// The number format "0,000": thousands separated by commas and at least four
// digits, so 11939 reads "11,939" and 500 reads "0,500".
std::string FormatThousands(int64_t value);

// A figure with one decimal ("12.5"), rounded half to even.
std::string FormatOneDecimal(double value);

// A fraction from 0 to 1 as a percentage with one decimal ("45.8").
std::string FormatPercent(double fraction);

}  // namespace courtmere
