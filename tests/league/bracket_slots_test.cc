// The fixed shapes of the brackets: the byes of every conference field from
// 8 to 14, the halves the conference semifinals join, and the seeds the
// national draw looks at in its second pass. (The national formats' days and
// games are checked by the whole postseasons.)
#include "league/bracket_slots.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace courtmere {
namespace {

// The seeds that can reach `slot` of a conference bracket of `field` teams,
// found by walking the rounds backwards from it.
std::set<int> SeedsFeeding(int slot, int field) {
  if (const int seed = ConfSeedInSlot(slot, field); seed > 0) return {seed};
  for (const char* day : {"Thursday", "Friday", "Saturday", "Sunday"}) {
    const ConfRound& round = *ConfRoundOn(day);
    const std::span<const SlotPair> pairs = ConfPairsPlayed(round, field);
    for (size_t i = 0; i < pairs.size(); ++i) {
      if (round.firstTarget + static_cast<int>(i) != slot) continue;
      std::set<int> seeds = SeedsFeeding(pairs[i].home, field);
      seeds.merge(SeedsFeeding(pairs[i].away, field));
      return seeds;
    }
  }
  return {};
}

TEST(ConfBracket, ByesPutSeedsInTheirFridaySlots) {
  // With 14 only seeds 1 and 2 wait for Friday; every other seed keeps its slot.
  for (int seed = 1; seed <= 14; ++seed) EXPECT_EQ(ConfSeedSlot(seed, 14), seed);
  // With 9 only 8 against 9 plays on Thursday: seeds 3 to 7 have byes.
  const std::map<int, int> nine = {{3, 20}, {4, 19}, {5, 18}, {6, 17}, {7, 16}, {8, 8}, {9, 9}};
  for (const auto& [seed, slot] : nine) EXPECT_EQ(ConfSeedSlot(seed, 9), slot) << seed;
  // With 8 every seed from 3 to 8 stands in the Friday slot 23 - seed.
  for (int seed = 3; seed <= 8; ++seed) EXPECT_EQ(ConfSeedSlot(seed, 8), 23 - seed);
  // An odd field of 11: seeds 3, 4, 5 rest, 6 to 11 play.
  EXPECT_EQ(ConfSeedSlot(5, 11), 18);
  EXPECT_EQ(ConfSeedSlot(6, 11), 6);
  EXPECT_EQ(ConfSeedInSlot(18, 11), 5);
  EXPECT_EQ(ConfSeedInSlot(17, 11), 0);  // the winner of 6 against 11 comes here
  EXPECT_EQ(ConfSeedInSlot(12, 11), 0);  // above the field
}

TEST(ConfBracket, EveryFieldFillsEachFridaySlotOnceCrownsOneOfAllSeedsAndJoinsHalves) {
  for (int field = kConfSmallestField; field <= kConfLargestField; ++field) {
    SCOPED_TRACE(field);
    std::set<int> all;
    for (int seed = 1; seed <= field; ++seed) all.insert(seed);
    EXPECT_EQ(SeedsFeeding(kConfChampionSlot, field), all);
    // Each Friday slot is held by exactly one bye seed or one Thursday winner.
    for (int slot = 15; slot <= 20; ++slot) {
      const bool bye = ConfSeedInSlot(slot, field) > 0;
      const bool thursdayWinner = slot - 15 < field - kConfSmallestField;
      EXPECT_NE(bye, thursdayWinner) << slot;
    }
  }
  // The first semifinal joins the half of seed one.
  EXPECT_EQ(SeedsFeeding(25, 14), (std::set<int>{1, 8, 9, 4, 13, 5, 12}));
  EXPECT_EQ(SeedsFeeding(26, 14), (std::set<int>{2, 7, 10, 3, 14, 6, 11}));
  EXPECT_EQ(SeedsFeeding(25, 8), (std::set<int>{1, 8, 4, 5}));
}

TEST(NationalFormats, SecondPassLooksOnlyAtTheSeedsMetInTheFirstTwoRounds) {
  std::set<int> halves(kTopHalf.begin(), kTopHalf.end());
  halves.insert(kBottomHalf.begin(), kBottomHalf.end());
  EXPECT_EQ(halves.size(), 16u);
  for (int seed = 1; seed <= 16; ++seed) {
    for (int other : SecondPassNeighbours(seed)) {
      EXPECT_EQ(InTopHalf(other), InTopHalf(seed)) << seed << " looks at " << other;
    }
  }
  EXPECT_EQ(std::vector<int>(SecondPassNeighbours(16).begin(), SecondPassNeighbours(16).end()),
            std::vector<int>{1});
  EXPECT_EQ(std::vector<int>(SecondPassNeighbours(1).begin(), SecondPassNeighbours(1).end()),
            (std::vector<int>{16, 9, 8}));
  EXPECT_TRUE(SecondPassNeighbours(17).empty());
}

}  // namespace
}  // namespace courtmere
