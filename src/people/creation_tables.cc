#include "people/creation_tables.h"

#include <array>

namespace courtmere {

namespace {

// Class limits: "Poor" when the roll is above `poor`, "Average" above
// `average`, "Good" above `good`, else `best`. A limit of 100 never passes.
struct ClassLimits {
  int poor;
  int average;
  int good;
  Quality best;
};

Quality ClassOf(int x, const ClassLimits& l) {
  if (x > l.poor) return Quality::kPoor;
  if (x > l.average) return Quality::kAverage;
  if (x > l.good) return Quality::kGood;
  return l.best;
}

ClassLimits PlayerClassLimits(int p) {
  if (p > 75) return {78, 49, 24, Quality::kExc};
  if (p >= 66) return {70, 42, 15, Quality::kExc};
  if (p >= 56) return {65, 32, 8, Quality::kExc};
  if (p >= 46) return {55, 15, 2, Quality::kExc};
  if (p >= 36) return {45, 8, 100, Quality::kGood};
  if (p >= 26) return {35, 2, 100, Quality::kGood};
  if (p >= 1) return {20, 100, 100, Quality::kAverage};
  return {0, 100, 100, Quality::kPoor};
}

ClassLimits ScrubClassLimits(int p) {
  if (p > 59) return {70, 40, 12, Quality::kExc};
  if (p >= 50) return {55, 15, 3, Quality::kExc};
  if (p >= 40) return {35, 4, 100, Quality::kGood};
  if (p >= 30) return {28, 100, 100, Quality::kAverage};
  return {18, 100, 100, Quality::kAverage};
}

// One row of a position table: rolls above `above` land on `band`.
struct HeightRow {
  int above;
  HeightBand band;
};

constexpr std::array<HeightRow, 10> kPlayerHeights = {{{97, {kPG, 2, 68}},
                                                       {96, {kPG, 2, 69}},
                                                       {85, {kPG, 2, 70}},
                                                       {80, {kPG, 3, 71}},
                                                       {60, {kSG, 4, 73}},
                                                       {40, {kSF, 5, 75}},
                                                       {20, {kPF, 5, 77}},
                                                       {5, {kC, 5, 79}},
                                                       {2, {kC, 3, 82}},
                                                       {0, {kC, 3, 83}}}};

constexpr std::array<HeightRow, 10> kScrubHeights = {{{97, {kPG, 2, 65}},
                                                      {95, {kPG, 2, 67}},
                                                      {90, {kPG, 2, 69}},
                                                      {80, {kPG, 3, 71}},
                                                      {60, {kSG, 3, 74}},
                                                      {40, {kSF, 3, 77}},
                                                      {20, {kPF, 2, 80}},
                                                      {5, {kC, 4, 82}},
                                                      {2, {kC, 0, 86}},
                                                      {0, {kC, 0, 87}}}};

HeightBand BandOf(int y, const std::array<HeightRow, 10>& table) {
  for (const HeightRow& row : table) {
    if (y > row.above) return row.band;
  }
  return table.back().band;
}

}  // namespace

Quality PlayerClass(int prestige, int x) {
  return ClassOf(x, PlayerClassLimits(prestige));
}

Quality ScrubClass(int prestige, int x) {
  return ClassOf(x, ScrubClassLimits(prestige));
}

HeightBand PlayerHeightBand(int y) {
  return BandOf(y, kPlayerHeights);
}

HeightBand ScrubHeightBand(int y) {
  return BandOf(y, kScrubHeights);
}

bool LeavesEarly(double overall, int potential, double gpa, int r) {
  if (overall > 86) return true;
  if (overall > 80 && potential > 74) return r < 65;
  if (overall > 80 && potential >= 65) return r < 45;
  if (overall > 75 && potential > 73) return gpa < 2 ? r < 30 : r < 9;
  return false;
}

}  // namespace courtmere
