#include "platform/rng.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/numeric.h"

namespace courtmere {
namespace {

std::vector<double> Draws(Rng& rng, int n, bool reseedBetween) {
  std::vector<double> out;
  for (int i = 0; i < n; ++i) {
    if (reseedBetween) rng.Reseed();
    out.push_back(rng.Rnd());
  }
  return out;
}

// A fixed seed replays exactly, reseeds included; a reseed moves the stream;
// with no seed the clock seeds it.
TEST(RngTest, FixedSeedReplaysExactlyEvenWithReseeds) {
  Rng a(42), b(42);
  EXPECT_TRUE(a.Fixed());
  EXPECT_EQ(Draws(a, 500, true), Draws(b, 500, true));
  Rng c(43);
  EXPECT_NE(Draws(a, 10, false), Draws(c, 10, false));
  Rng d(7), e(7);
  d.Reseed();
  EXPECT_NE(d.Rnd(), e.Rnd());
  EXPECT_FALSE(Rng().Fixed());
  EXPECT_FALSE(Rng::FromOption(std::nullopt).Fixed());
  EXPECT_TRUE(Rng::FromOption(5).Fixed());
}

TEST(RngTest, RndRollAndRStayInRange) {
  Rng rng(1);
  std::vector<int> rollCounts(7, 0);
  for (int i = 0; i < 60000; ++i) {
    double x = rng.Rnd();
    ASSERT_GE(x, 0.0);
    ASSERT_LT(x, 1.0);
    int roll = rng.Roll(6);
    ASSERT_GE(roll, 1);
    ASSERT_LE(roll, 6);
    ++rollCounts[roll];
    int r = rng.R(10, 5);
    ASSERT_GE(r, 5);
    ASSERT_LE(r, 15);
  }
  for (int face = 1; face <= 6; ++face) {
    EXPECT_NEAR(rollCounts[face], 10000, 500) << "face " << face;
  }
  for (int i = 0; i < 100; ++i) ASSERT_EQ(rng.Roll(1), 1);
}

// The game reseeds before most draws, so the draw that follows a reseed must
// be as even as any other: the faces of a die, and the halves of [0, 1) for
// consecutive reseeds (a weak reseed shows as pairs that move together).
TEST(RngTest, DrawsRightAfterReseedsStayUniform) {
  for (Rng rng : {Rng(9), Rng()}) {
    std::vector<int> faces(11, 0);
    int sameHalf = 0;
    double previous = 0.5;
    for (int i = 0; i < 100000; ++i) {
      rng.Reseed();
      const double x = rng.Rnd();
      ++faces[static_cast<int>(x * 10) + 1];
      if ((x < 0.5) == (previous < 0.5)) ++sameHalf;
      previous = x;
    }
    for (int face = 1; face <= 10; ++face) EXPECT_NEAR(faces[face], 10000, 450) << face;
    EXPECT_NEAR(sameHalf, 50000, 700);
  }
}

// The whole-number form of Int(Rnd * n + c) gives what the floating-point
// form gives for the same draw, over the sizes the game rolls.
TEST(RngTest, IntRndIsIntOfRndTimesNPlusC) {
  for (int n : {1, 2, 3, 12, 20, 35, 50, 100, 120, 200, 300, 400, 10000}) {
    Rng whole(77), real(77);
    for (int i = 0; i < 20000; ++i) {
      ASSERT_EQ(whole.IntRnd(n, 5), Int(real.Rnd() * n + 5)) << "n " << n << " draw " << i;
    }
  }
}

}  // namespace
}  // namespace courtmere
