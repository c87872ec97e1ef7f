// Numeric helpers with the rounding rules the game's formulas rest on.
//
// Int drops the fraction downward (floor). CInt, Round and every conversion of
// a float to a stored integer round to the nearest whole number with ties to
// even (0.5 -> 0, 1.5 -> 2, 2.5 -> 2, -0.5 -> 0). Many ratings depend on the
// difference, so use these everywhere and never a bare cast or std::round.
#pragma once

#include <cfenv>
#include <cmath>
#include <cstdint>

namespace courtmere {

// Largest whole number not above x.
inline int Int(double x) {
  return static_cast<int>(std::floor(x));
}

// Whole part of x, dropping the fraction toward zero.
inline int Fix(double x) {
  return static_cast<int>(std::trunc(x));
}

// Nearest whole number, ties to even. std::rint follows the current rounding
// mode, which the program never changes from round-to-nearest; unlike
// std::nearbyint it compiles to a few inline instructions.
inline int CInt(double x) {
  return static_cast<int>(std::rint(x));
}

// CInt(twice / 2.0) in whole numbers: a half rounds to its even neighbour.
// For sums of whole numbers and halves, which need no float conversion.
inline int CIntOfHalves(int twice) {
  const int half = twice >> 1;  // floor, negative numbers included
  return half + (twice & half & 1);
}

// Rounds to `places` decimals, ties to even on the scaled value.
inline double Round(double x, int places = 0) {
  if (places == 0) return std::rint(x);
  const double scale = std::pow(10.0, places);
  return std::rint(x * scale) / scale;
}

// The value a float takes when it is stored in an integer column.
inline int64_t ToStoredInt(double x) {
  return static_cast<int64_t>(std::rint(x));
}

}  // namespace courtmere
