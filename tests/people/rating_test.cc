// Derived ratings, Overall by position, the cap and a year of development.
#include "people/rating.h"

#include <gtest/gtest.h>

#include "people/player.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

Player Even(int position, int value) {
  Player p;
  p.PlayerPosition = position;
  for (int Player::*r :
       {&Player::Jumpshot, &Player::InScoring, &Player::ThreePoint, &Player::PerrDefense,
        &Player::PostDefense, &Player::DefReb, &Player::OffReb, &Player::Handling,
        &Player::OffAware, &Player::DefAware, &Player::Passing, &Player::Jumping,
        &Player::Quickness, &Player::Strength}) {
    p.*r = value;
  }
  p.Reach = 76;
  p.Endurance = 2000;
  return p;
}

TEST(DerivedRatings, EvenRatingsAt76InchesAndHalvesToEven) {
  Player p = Even(kC, 60);
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.ShotBlock, 60);
  EXPECT_EQ(p.Steal, 60);
  EXPECT_EQ(p.OffRebounding, 0.75 * 60 + 60 + 30 + 30);
  EXPECT_EQ(p.DefRebounding, 165);
  // Halves round to the even neighbour.
  p.PlayerPosition = kPG;
  p.PerrDefense = 58;  // 43.5 + 15 = 58.5 -> 58
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.Steal, 58);
  p.PerrDefense = 62;  // 46.5 + 15 = 61.5 -> 62
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.Steal, 62);
  p.PostDefense = 61;  // 45.75 + 15 + 0 = 60.75 -> 61; with reach 77 -> 61.75 -> 62
  p.Jumping = 60;
  p.Reach = 77;
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.ShotBlock, 62);
  p.Strength = 61;  // rebounding sums gain a half: 45 + 60 + 30.5 + 30 + 1 = 166.5 -> 166
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.OffRebounding, 166);
  p.Strength = 63;  // 45 + 60 + 31.5 + 30 + 1 = 167.5 -> 168
  ComputeDerivedRatings(p);
  EXPECT_EQ(p.DefRebounding, 168);
}

// An even player rates his rating at every position; the position weighs
// its skills; an unknown position keeps his Overall and has no athletic
// value; endurance counts through its own scale.
TEST(Overall, WeighsThePositionsSkills) {
  for (int position = kPG; position <= kC; ++position) {
    Player p = Even(position, 70);
    ComputeOverall(p);
    EXPECT_EQ(p.Overall, 70.0) << PositionName(position);
  }
  Player p = Even(kPG, 50);
  p.Passing = 94;  // 0.8 * 44 / 4.35 more
  ComputeOverall(p);
  EXPECT_NEAR(p.Overall, 50 + 0.8 * 44 / 4.35, 1e-9);
  p.PlayerPosition = kC;  // a centre doesn't count his passing as much
  ComputeOverall(p);
  EXPECT_NEAR(p.Overall, 50 + 0.4 * 44 / 4.1, 1e-9);
  p.PlayerPosition = kSF;  // nor does a small forward at all
  ComputeOverall(p);
  EXPECT_NEAR(p.Overall, 50, 1e-9);

  Player unknown = Even(0, 70);
  unknown.Overall = 12.5;
  ComputeOverall(unknown);
  EXPECT_EQ(unknown.Overall, 12.5);
  EXPECT_EQ(AthleticValue(unknown), 0);

  Player big = Even(kPF, 60);
  big.Endurance = 2100;  // E = 30
  EXPECT_NEAR(AthleticValue(big), (42 + 18 + 42 + 30) / 2.0, 1e-9);
  big.PlayerPosition = kSG;
  EXPECT_NEAR(AthleticValue(big), (12 + 60 + 42 + 30) / 2.2, 1e-9);
}

// Development gains pass a hundred; the cap brings the twelve skills back
// to a hundred and leaves the others.
TEST(DevelopOneYear, GainsPassAHundredUntilTheCap) {
  Rng rng(7);
  Player p = Even(kPG, 100);
  p.Potential = 95;
  for (int year = 0; year < 3; ++year) DevelopOneYear(rng, p);
  EXPECT_GT(p.Handling, 100);
  EXPECT_GT(p.OffAware, 100);
  EXPECT_EQ(p.Quickness, 100);  // not a gaining rating
  CapRatings(p);
  EXPECT_EQ(p.Handling, 100);
  EXPECT_EQ(p.OffAware, 100);

  Player over = Even(kC, 130);
  over.Endurance = 2100;
  over.Range = 120;
  CapRatings(over);
  EXPECT_EQ(over.Strength, 100);
  EXPECT_EQ(over.ThreePoint, 100);
  EXPECT_EQ(over.Quickness, 130);
  EXPECT_EQ(over.Jumping, 130);
  EXPECT_EQ(over.Endurance, 2100);
  EXPECT_EQ(over.Range, 120);
}

TEST(DevelopOneYear, PrimaryGainsOutrunSecondaryOnesAndOnlyCentresGainStrengthFirst) {
  Rng rng(3);
  double guardPrimary = 0, guardSecondary = 0, centreStrength = 0, guardStrength = 0;
  for (int i = 0; i < 400; ++i) {
    Player g = Even(kPG, 50);
    g.Potential = 60;
    DevelopOneYear(rng, g);
    guardPrimary += g.Handling - 50;
    guardSecondary += g.InScoring - 50;
    guardStrength += g.Strength - 50;
    Player c = Even(kC, 50);
    c.Potential = 60;
    DevelopOneYear(rng, c);
    centreStrength += c.Strength - 50;
  }
  // Primary: 60 / 20..29 + 30 / 10..29, about 3.7; secondary: 1.5 + 20 / 10..29, about 2.6.
  EXPECT_GT(guardPrimary / 400, 3.2);
  EXPECT_LT(guardSecondary / 400, 3.1);
  EXPECT_GT(centreStrength, guardStrength);
}

TEST(PlayerText, HeightsAndPositionNames) {
  EXPECT_EQ(HeightText(73), "6-1");
  EXPECT_EQ(HeightText(84), "7-0");
  EXPECT_EQ(HeightInches("6-11"), 83);
  EXPECT_EQ(HeightInches("tall"), 0);
  EXPECT_STREQ(PositionName(kPF), "PF");
  EXPECT_STREQ(PositionName(0), "C");
  EXPECT_STREQ(PositionName(9), "C");
}

}  // namespace
}  // namespace courtmere
