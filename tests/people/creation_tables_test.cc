// The tables of player creation, at every edge of every band: the class by
// prestige for players and background players, the position and height by
// roll, and the early leavers.
#include "people/creation_tables.h"

#include <gtest/gtest.h>

namespace courtmere {
namespace {

// One row of a class table: prestige from `low` to `high`, "Poor" above
// `poor`, "Average" above `average`, "Good" above `good`, else `best`; a
// limit of 100 is a class the row never gives.
struct ClassRow {
  int low;
  int high;
  int poor;
  int average;
  int good;
  Quality best;
};

Quality Expected(const ClassRow& row, int x) {
  if (x > row.poor) return Quality::kPoor;
  if (x > row.average) return Quality::kAverage;
  if (x > row.good) return Quality::kGood;
  return row.best;
}

// Every roll at both ends of every prestige band.
void ExpectTable(Quality (*classOf)(int, int), const std::vector<ClassRow>& rows) {
  for (const ClassRow& row : rows) {
    for (int prestige : {row.low, row.high}) {
      for (int x = 1; x <= 100; ++x) {
        EXPECT_EQ(classOf(prestige, x), Expected(row, x)) << "prestige " << prestige << " x " << x;
      }
    }
  }
}

TEST(PlayerClass, EveryPrestigeBandAtBothEnds) {
  ExpectTable(PlayerClass, {{76, 100, 78, 49, 24, Quality::kExc},
                            {66, 75, 70, 42, 15, Quality::kExc},
                            {56, 65, 65, 32, 8, Quality::kExc},
                            {46, 55, 55, 15, 2, Quality::kExc},
                            {36, 45, 45, 8, 100, Quality::kGood},
                            {26, 35, 35, 2, 100, Quality::kGood},
                            {1, 25, 20, 100, 100, Quality::kAverage},
                            {-10, 0, 0, 100, 100, Quality::kPoor}});
}

TEST(ScrubClass, EveryPrestigeBandAtBothEnds) {
  ExpectTable(ScrubClass, {{60, 100, 70, 40, 12, Quality::kExc},
                           {50, 59, 55, 15, 3, Quality::kExc},
                           {40, 49, 35, 4, 100, Quality::kGood},
                           {30, 39, 28, 100, 100, Quality::kAverage},
                           {0, 29, 18, 100, 100, Quality::kAverage}});
}

// Rolls from `low` to `high` build `position` at a height of R(m, a).
struct HeightRowCase {
  int low;
  int high;
  int position;
  double m;
  double a;
};

void ExpectHeights(HeightBand (*bandOf)(int), const std::vector<HeightRowCase>& rows) {
  int covered = 0;
  for (const HeightRowCase& row : rows) {
    for (int y = row.low; y <= row.high; ++y, ++covered) {
      const HeightBand band = bandOf(y);
      EXPECT_EQ(band.position, row.position) << "y " << y;
      EXPECT_EQ(band.m, row.m) << "y " << y;
      EXPECT_EQ(band.a, row.a) << "y " << y;
    }
  }
  EXPECT_EQ(covered, 100);
}

TEST(HeightBands, EveryRollOfThePlayersTable) {
  ExpectHeights(PlayerHeightBand, {{98, 100, kPG, 2, 68},
                                   {97, 97, kPG, 2, 69},
                                   {86, 96, kPG, 2, 70},
                                   {81, 85, kPG, 3, 71},
                                   {61, 80, kSG, 4, 73},
                                   {41, 60, kSF, 5, 75},
                                   {21, 40, kPF, 5, 77},
                                   {6, 20, kC, 5, 79},
                                   {3, 5, kC, 3, 82},
                                   {1, 2, kC, 3, 83}});
}

TEST(HeightBands, EveryRollOfTheBackgroundTable) {
  ExpectHeights(ScrubHeightBand, {{98, 100, kPG, 2, 65},
                                  {96, 97, kPG, 2, 67},
                                  {91, 95, kPG, 2, 69},
                                  {81, 90, kPG, 3, 71},
                                  {61, 80, kSG, 3, 74},
                                  {41, 60, kSF, 3, 77},
                                  {21, 40, kPF, 2, 80},
                                  {6, 20, kC, 4, 82},
                                  {3, 5, kC, 0, 86},
                                  {1, 2, kC, 0, 87}});
}

TEST(LeavesEarly, EveryRowAtItsEdges) {
  // Above 86 always; 86 itself falls to the rows below.
  EXPECT_TRUE(LeavesEarly(86.01, 0, 3.0, 100));
  EXPECT_FALSE(LeavesEarly(86, 0, 3.0, 1));
  // Above 80 with Potential above 74: r below 65.
  EXPECT_TRUE(LeavesEarly(80.01, 75, 3.0, 64));
  EXPECT_FALSE(LeavesEarly(80.01, 75, 3.0, 65));
  EXPECT_FALSE(LeavesEarly(80, 75, 3.0, 64));
  // Above 80 with Potential 65 to 74: r below 45.
  EXPECT_TRUE(LeavesEarly(84, 74, 3.0, 44));
  EXPECT_FALSE(LeavesEarly(84, 74, 3.0, 45));
  EXPECT_TRUE(LeavesEarly(84, 65, 3.0, 44));
  EXPECT_FALSE(LeavesEarly(84, 64, 3.0, 1));
  // Above 75 with Potential above 73: r below 30 with a GPA below 2, else
  // below 9.
  EXPECT_TRUE(LeavesEarly(75.01, 74, 1.99, 29));
  EXPECT_FALSE(LeavesEarly(75.01, 74, 1.99, 30));
  EXPECT_TRUE(LeavesEarly(78, 74, 2.0, 8));
  EXPECT_FALSE(LeavesEarly(78, 74, 2.0, 9));
  EXPECT_FALSE(LeavesEarly(78, 73, 1.0, 1));
  EXPECT_FALSE(LeavesEarly(75, 90, 1.0, 1));
}

}  // namespace
}  // namespace courtmere
