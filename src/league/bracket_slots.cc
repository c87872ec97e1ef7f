#include "league/bracket_slots.h"

#include <algorithm>

namespace courtmere {

namespace {

constexpr SlotPair kConfThursday[] = {{8, 9}, {7, 10}, {6, 11}, {5, 12}, {4, 13}, {3, 14}};
constexpr SlotPair kConfFriday[] = {{1, 15}, {19, 18}, {2, 16}, {20, 17}};
constexpr SlotPair kConfSaturday[] = {{21, 22}, {23, 24}};
constexpr SlotPair kConfSunday[] = {{25, 26}};

const std::array<ConfRound, 4> kConfRounds = {{
    {"Thursday", kConfThursday, 15},
    {"Friday", kConfFriday, 21},
    {"Saturday", kConfSaturday, 25},
    {"Sunday", kConfSunday, 27},
}};

constexpr std::string_view kAllRegions[] = {"Midwest", "South", "East", "West"};
constexpr std::string_view kMidwestEast[] = {"Midwest", "East"};
constexpr std::string_view kSouthWest[] = {"South", "West"};

// NCT: the first round on Thursday (top half) and Friday (bottom half), the
// second on Saturday and Sunday, the regional semifinals and finals a week
// later, two regions a day.
constexpr SlotPair kNctThursday[] = {{1, 16}, {8, 9}, {5, 12}, {4, 13}};
constexpr SlotPair kNctFriday[] = {{6, 11}, {3, 14}, {7, 10}, {2, 15}};
constexpr SlotPair kNctSaturday[] = {{21, 22}, {24, 23}};
constexpr SlotPair kNctSunday[] = {{26, 25}, {28, 27}};
constexpr SlotPair kRegionalSemifinals[] = {{31, 34}, {32, 33}};
constexpr SlotPair kRegionalFinal[] = {{41, 42}};

constexpr RegionRound kNctRounds[] = {
    {17, "Thursday", kAllRegions, kNctThursday, 21},
    {17, "Friday", kAllRegions, kNctFriday, 25},
    {17, "Saturday", kAllRegions, kNctSaturday, 31},
    {17, "Sunday", kAllRegions, kNctSunday, 33},
    {18, "Thursday", kMidwestEast, kRegionalSemifinals, 41},
    {18, "Friday", kSouthWest, kRegionalSemifinals, 41},
    {18, "Saturday", kMidwestEast, kRegionalFinal, 51},
    {18, "Sunday", kSouthWest, kRegionalFinal, 51},
};

// ACT: seeds 1 to 8 stand in slots 21 to 28.
constexpr SlotPair kActTuesday[] = {{21, 28}, {24, 25}};
constexpr SlotPair kActWednesday[] = {{23, 26}, {22, 27}};

constexpr RegionRound kActRounds[] = {
    {17, "Tuesday", kAllRegions, kActTuesday, 31},
    {17, "Wednesday", kAllRegions, kActWednesday, 33},
    {18, "Monday", kAllRegions, kRegionalSemifinals, 41},
    {18, "Wednesday", kAllRegions, kRegionalFinal, 51},
};

// When each next round is written: the first round's two days stand from
// the selection on.
constexpr RoundLink kNctLinks[] = {
    {{17, "Friday"}, {{{17, "Saturday"}, {}}}},
    {{17, "Saturday"}, {{{17, "Sunday"}, {}}}},
    {{17, "Sunday"}, {{{18, "Thursday"}, {18, "Friday"}}}},
    {{18, "Friday"}, {{{18, "Saturday"}, {18, "Sunday"}}}},
    {{18, "Sunday"}, {{{19, "Saturday"}, {}}}},
    {{19, "Saturday"}, {{{20, "Monday"}, {}}}},
};
constexpr RoundLink kActLinks[] = {
    {{17, "Wednesday"}, {{{18, "Monday"}, {}}}},
    {{18, "Monday"}, {{{18, "Wednesday"}, {}}}},
    {{18, "Wednesday"}, {{{19, "Monday"}, {}}}},
    {{19, "Monday"}, {{{19, "Wednesday"}, {}}}},
};

const NationalFormat kNct = {"",         "Finals", "FinalFour", "Finals", 16,       1,
                             kNctRounds, 19,       "Saturday",  20,       "Monday", kNctLinks};
const NationalFormat kAct = {"ACT",    "ACTFinals", "ACTFinalFour", "ACTFinals",
                             8,        21,          kActRounds,     19,
                             "Monday", 19,          "Wednesday",    kActLinks};

constexpr int kPass2Seed1[] = {16, 9, 8};
constexpr int kPass2Seed2[] = {15, 10, 7};
constexpr int kPass2Seed3[] = {14, 6, 11};
constexpr int kPass2Seed4[] = {13, 5, 12};
constexpr int kPass2Seed5[] = {13, 4, 12};
constexpr int kPass2Seed6[] = {11, 3, 14};
constexpr int kPass2Seed7[] = {10, 2};
constexpr int kPass2Seed8[] = {9, 1};
constexpr int kPass2Seed9[] = {8, 1};
constexpr int kPass2Seed10[] = {7, 2};
constexpr int kPass2Seed11[] = {6, 14, 3};
constexpr int kPass2Seed12[] = {5, 4, 13};
constexpr int kPass2Seed13[] = {5, 12, 4};
constexpr int kPass2Seed14[] = {3};
constexpr int kPass2Seed15[] = {2};
constexpr int kPass2Seed16[] = {1};

const std::array<std::span<const int>, 17> kPass2 = {std::span<const int>{},
                                                     kPass2Seed1,
                                                     kPass2Seed2,
                                                     kPass2Seed3,
                                                     kPass2Seed4,
                                                     kPass2Seed5,
                                                     kPass2Seed6,
                                                     kPass2Seed7,
                                                     kPass2Seed8,
                                                     kPass2Seed9,
                                                     kPass2Seed10,
                                                     kPass2Seed11,
                                                     kPass2Seed12,
                                                     kPass2Seed13,
                                                     kPass2Seed14,
                                                     kPass2Seed15,
                                                     kPass2Seed16};

}  // namespace

const ConfRound* ConfRoundOn(std::string_view day) {
  for (const ConfRound& round : kConfRounds) {
    if (round.day == day) return &round;
  }
  return nullptr;
}

const ConfRound* ConfRoundAfter(std::string_view day) {
  for (size_t i = 0; i + 1 < kConfRounds.size(); ++i) {
    if (kConfRounds[i].day == day) return &kConfRounds[i + 1];
  }
  return nullptr;
}

std::span<const SlotPair> ConfPairsPlayed(const ConfRound& round, int field) {
  if (round.firstTarget != kConfRounds[0].firstTarget) return round.pairs;
  const int games = std::clamp(field - kConfSmallestField, 0, static_cast<int>(round.pairs.size()));
  return round.pairs.first(static_cast<size_t>(games));
}

int ConfSeedSlot(int seed, int field) {
  if (seed >= 3 && seed <= 8 && field < 17 - seed) return 23 - seed;
  return seed;
}

int ConfSeedInSlot(int slot, int field) {
  if (slot >= 15 && slot <= 20) {
    const int seed = 23 - slot;
    return field < 17 - seed ? seed : 0;
  }
  if (slot < 1 || slot > field) return 0;
  return ConfSeedSlot(slot, field) == slot ? slot : 0;
}

int RegionIndex(std::string_view region) {
  const auto it = std::find(kRegions.begin(), kRegions.end(), region);
  return it == kRegions.end() ? -1 : static_cast<int>(it - kRegions.begin());
}

const NationalFormat& NctFormat() {
  return kNct;
}

const NationalFormat& ActFormat() {
  return kAct;
}

bool InTopHalf(int seed) {
  return std::find(kTopHalf.begin(), kTopHalf.end(), seed) != kTopHalf.end();
}

std::span<const int> SecondPassNeighbours(int seed) {
  if (seed < 1 || seed > 16) return {};
  return kPass2[static_cast<size_t>(seed)];
}

}  // namespace courtmere
