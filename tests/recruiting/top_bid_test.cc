// The scouts' estimate of the top rival bid: the spread by Espionage, the
// weekly caps, the floor of a negative estimate and the hold on the last.
#include "recruiting/top_bid.h"

#include <gtest/gtest.h>

#include "platform/rng.h"

namespace courtmere {
namespace {

TEST(TopBid, TheSpreadNarrowsWithEspionage) {
  const std::pair<int, int> cases[] = {{95, 5},  {91, 5},  {90, 10}, {81, 10}, {80, 20},
                                       {71, 20}, {70, 30}, {61, 30}, {60, 40}, {51, 40},
                                       {50, 50}, {41, 50}, {40, 70}, {0, 70}};
  for (const auto& [espionage, spread] : cases) {
    EXPECT_EQ(EspionageSpread(espionage), spread) << espionage;
  }
}

TEST(TopBid, EstimatesStayWithinTheirBounds) {
  Rng rng(11);
  int high = 0;
  for (int i = 0; i < 2000; ++i) {
    // Most of the time M + S; otherwise M - S.
    const int e = EstimateTopBid(rng, 50, 10, 5, 0);
    EXPECT_TRUE(e == 60 || e == 40) << e;
    high += e == 60;
    // Above a week's limit: the base plus 1 to 10.
    const int week6 = EstimateTopBid(rng, 300, 5, 6, 0);
    EXPECT_GE(week6, 131);
    EXPECT_LE(week6, 140);
    const int week12 = EstimateTopBid(rng, 300, 5, 12, 0);
    EXPECT_GE(week12, 201);
    EXPECT_LE(week12, 210);
    // A negative estimate becomes 1 to 20.
    const int low = EstimateTopBid(rng, 0, 70, 6, 0);
    EXPECT_TRUE(low == 70 || (low >= 1 && low <= 20)) << low;
    // Below the last estimate: the last, 10 up or down.
    const int held = EstimateTopBid(rng, 0, 5, 8, 100);
    EXPECT_TRUE(held == 110 || held == 90) << held;
  }
  EXPECT_NEAR(high / 2000.0, 0.8, 0.04);
}

}  // namespace
}  // namespace courtmere
