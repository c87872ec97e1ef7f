// Starters and bench of a depth chart built from the working arrays.
#include "cpu/lineup_builder.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace courtmere {
namespace {

constexpr int PG = 1, SG = 2, SF = 3, PF = 4, C = 5;

LineupWork Build(std::vector<LineupRow> rows) {
  LineupWork w(std::move(rows));
  PickStarters(w);
  PickBench(w);
  return w;
}

// The rules every chart keeps, whatever the roster.
void ExpectLegal(const LineupWork& w) {
  std::map<int, int> spots;
  std::map<int, int> starts;
  for (int p = PG; p <= C; ++p) {
    if (w.starter[p] != 0) {
      ++spots[w.starter[p]];
      ++starts[w.starter[p]];
    }
    const int atPosition[] = {w.starter[p], w.bench[p], w.bench[p + 5]};
    for (int i = 0; i < 3; ++i) {
      for (int j = i + 1; j < 3; ++j) {
        if (atPosition[i] != 0) {
          EXPECT_NE(atPosition[i], atPosition[j]) << "position " << p;
        }
      }
    }
  }
  for (int s = 1; s <= 10; ++s) {
    if (w.bench[s] != 0) ++spots[w.bench[s]];
  }
  for (auto [id, n] : spots) EXPECT_LE(n, 2) << "player " << id;
  for (auto [id, n] : starts) EXPECT_EQ(n, 1) << "player " << id;
}

TEST(PickStarters, TheSecondOfTwoTopPointGuardsStartsAtTheNeighbourOfTheTable) {
  // SG's best (70) is at least SF's (60): SF is tried first.
  LineupWork w = Build({{1, PG, 90, 74},
                        {2, PG, 85, 74},
                        {3, SG, 70, 76},
                        {4, SF, 60, 78},
                        {5, PF, 60, 80},
                        {6, C, 60, 83}});
  EXPECT_EQ(w.starter[PG], 1);
  EXPECT_EQ(w.starter[SF], 2);
  EXPECT_EQ(w.starter[SG], 3);
  EXPECT_EQ(w.starter[PF], 4);  // the small forward moves on to PF
  EXPECT_EQ(w.starter[C], 5);   // and the power forward to C
  ExpectLegal(w);

  // With a stronger small forward the second guard starts at SG instead.
  w = Build({{1, PG, 90, 74}, {2, PG, 85, 74}, {3, SF, 70, 78}, {4, SG, 60, 76}});
  EXPECT_EQ(w.starter[SG], 2);
  EXPECT_EQ(w.starter[SF], 3);
}

TEST(PickStarters, ABigManGoesToTheStrictlyWeakestPosition) {
  // No point guard at all: the second centre, with no neighbour open, starts
  // at PG, the first slot of the weakest position's order.
  LineupWork w =
      Build({{1, C, 95, 84}, {2, PF, 94, 81}, {3, SG, 93, 76}, {4, SF, 92, 79}, {5, C, 91, 84}});
  EXPECT_EQ(w.starter[PG], 5);
  ExpectLegal(w);
}

TEST(PickBench, SecondRowOneTryEachThenTheBestLeftFillsTwoThirdRowSpots) {
  LineupWork w = Build({{1, PG, 90, 74},
                        {2, SG, 89, 76},
                        {3, SF, 88, 78},
                        {4, PF, 87, 80},
                        {5, C, 86, 83},
                        {6, PG, 80, 74},
                        {7, SG, 79, 76},
                        {8, SF, 78, 78},
                        {9, PF, 77, 80},
                        {10, C, 76, 83}});
  // Second row: each starter once, at the first position near his own.
  EXPECT_EQ(w.bench[PG], 2);
  EXPECT_EQ(w.bench[SG], 1);
  EXPECT_EQ(w.bench[SF], 5);
  EXPECT_EQ(w.bench[PF], 3);
  EXPECT_EQ(w.bench[C], 4);
  // Third row: a reserve stays until he holds two spots or nothing fits.
  EXPECT_EQ(w.bench[5 + PG], 6);
  EXPECT_EQ(w.bench[5 + SG], 6);
  EXPECT_EQ(w.bench[5 + SF], 7);
  EXPECT_EQ(w.bench[5 + PF], 8);
  EXPECT_EQ(w.bench[5 + C], 8);
  EXPECT_EQ(w.openBench, 0);
  ExpectLegal(w);
}

// A team of guards still fills every slot; a short roster leaves slots open
// but stays legal.
TEST(Lineup, UnusualRostersStayLegal) {
  std::vector<LineupRow> rows;
  for (int i = 1; i <= 13; ++i) rows.push_back({i, i % 2 ? PG : SG, 100.0 - i, 74});
  LineupWork w = Build(rows);
  EXPECT_EQ(w.openStarters, 0);
  EXPECT_EQ(w.openBench, 0);
  for (int p = PG; p <= C; ++p) EXPECT_NE(w.starter[p], 0);
  ExpectLegal(w);

  w = Build({{1, C, 80, 84}, {2, C, 70, 84}, {3, PF, 60, 80}});
  ExpectLegal(w);
  EXPECT_GT(w.openBench, 0);
}

TEST(Lineup, EveryRandomRosterGivesALegalChart) {
  std::mt19937 gen(17);
  for (int team = 0; team < 500; ++team) {
    const int size = 8 + gen() % 6;
    std::vector<LineupRow> rows;
    for (int i = 0; i < size; ++i) {
      rows.push_back(
          {100 + i, static_cast<int>(1 + gen() % 5), 0, static_cast<int>(70 + gen() % 16)});
    }
    std::vector<double> ratings;
    for (int i = 0; i < size; ++i) ratings.push_back(30 + gen() % 60);
    std::sort(ratings.rbegin(), ratings.rend());
    for (int i = 0; i < size; ++i) rows[i].rating = ratings[i];
    LineupWork w = Build(rows);
    for (int p = PG; p <= C; ++p) ASSERT_NE(w.starter[p], 0);
    ExpectLegal(w);
  }
}

}  // namespace
}  // namespace courtmere
