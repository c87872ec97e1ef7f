#include "platform/numeric.h"

#include <gtest/gtest.h>

#include <utility>

namespace courtmere {
namespace {

TEST(NumericTest, CIntRoundsTiesToEven) {
  const std::pair<double, int> cases[] = {{0.5, 0},  {1.5, 2},   {2.5, 2},       {3.5, 4},
                                          {-0.5, 0}, {-1.5, -2}, {2.5000001, 3}, {70.49, 70}};
  for (auto [x, want] : cases) EXPECT_EQ(CInt(x), want) << x;
}

TEST(NumericTest, CIntOfHalvesIsCIntOfTheHalf) {
  for (int twice = -5001; twice <= 5001; ++twice) {
    ASSERT_EQ(CIntOfHalves(twice), CInt(twice / 2.0)) << twice;
  }
}

TEST(NumericTest, IntIsFloorFixIsTruncation) {
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(Int(-2.0), -2);
  EXPECT_EQ(Fix(-0.5), 0);
  EXPECT_EQ(Fix(-2.7), -2);
}

TEST(NumericTest, RoundToPlacesTiesToEven) {
  EXPECT_DOUBLE_EQ(Round(2.5), 2.0);
  EXPECT_DOUBLE_EQ(Round(0.125, 2), 0.12);
  EXPECT_DOUBLE_EQ(Round(0.375, 2), 0.38);
  EXPECT_DOUBLE_EQ(Round(12.3456, 3), 12.346);
  EXPECT_EQ(ToStoredInt(36.5), 36);
  EXPECT_EQ(ToStoredInt(37.5), 38);
}

}  // namespace
}  // namespace courtmere
