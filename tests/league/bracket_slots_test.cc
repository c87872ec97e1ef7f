// The fixed shapes of the brackets: the byes of every conference field from
// 8 to 14, the halves the conference semifinals join, and the national
// formats' days, pairs and target slots.
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

TEST(ConfBracket, ThursdayPlaysTheFieldLessEightGamesFromTheTopOfTheList) {
  const ConfRound& thursday = *ConfRoundOn("Thursday");
  EXPECT_EQ(ConfPairsPlayed(thursday, 8).size(), 0u);
  ASSERT_EQ(ConfPairsPlayed(thursday, 9).size(), 1u);
  EXPECT_EQ(ConfPairsPlayed(thursday, 9)[0].home, 8);
  EXPECT_EQ(ConfPairsPlayed(thursday, 9)[0].away, 9);
  EXPECT_EQ(ConfPairsPlayed(thursday, 14).size(), 6u);
  EXPECT_EQ(ConfPairsPlayed(*ConfRoundOn("Friday"), 8).size(), 4u);
  EXPECT_EQ(ConfRoundOn("Monday"), nullptr);
  EXPECT_EQ(ConfRoundAfter("Thursday")->day, "Friday");
  EXPECT_EQ(ConfRoundAfter("Sunday"), nullptr);
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

TEST(ConfBracket, EveryFieldFillsEachFridaySlotOnceAndCrownsOneOfAllSeeds) {
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
}

TEST(ConfBracket, TheFirstSemifinalJoinsTheHalfOfSeedOne) {
  EXPECT_EQ(SeedsFeeding(25, 14), (std::set<int>{1, 8, 9, 4, 13, 5, 12}));
  EXPECT_EQ(SeedsFeeding(26, 14), (std::set<int>{2, 7, 10, 3, 14, 6, 11}));
  EXPECT_EQ(SeedsFeeding(25, 8), (std::set<int>{1, 8, 4, 5}));
}

// The games of a format on each day: count of games, every region's slots
// feeding a slot above them.
TEST(NationalFormats, TheNctPlaysSixtyThreeGamesOverItsDaysWithFifteenInEachRegion) {
  const NationalFormat& f = NctFormat();
  std::map<std::string_view, int> perRegion;
  int games = 0;
  for (const RegionRound& round : f.rounds) {
    for (std::string_view region : round.regions) perRegion[region] += round.pairs.size();
    games += static_cast<int>(round.regions.size() * round.pairs.size());
    for (size_t i = 0; i < round.pairs.size(); ++i) {
      EXPECT_GT(round.firstTarget + static_cast<int>(i), round.pairs[i].home);
      EXPECT_GT(round.firstTarget + static_cast<int>(i), round.pairs[i].away);
    }
  }
  EXPECT_EQ(games + 3, 63);
  for (std::string_view region : kRegions) EXPECT_EQ(perRegion[region], 15) << region;
  // The first round pairs each seed once, 1 against 16, the sum always 17.
  std::set<int> seeds;
  for (int d = 0; d < kOpeningDays; ++d) {
    for (const SlotPair& p : f.rounds[static_cast<size_t>(d)].pairs) {
      EXPECT_EQ(p.home + p.away, 17);
      EXPECT_EQ(InTopHalf(p.home), d == 0);
      seeds.insert({p.home, p.away});
    }
  }
  EXPECT_EQ(seeds.size(), 16u);
}

TEST(NationalFormats, TheActPlaysThirtyOneGamesFromItsEightSeedSlots) {
  const NationalFormat& f = ActFormat();
  int games = 3;
  std::set<int> seeds;
  for (const RegionRound& round : f.rounds) {
    games += static_cast<int>(round.regions.size() * round.pairs.size());
  }
  for (int d = 0; d < kOpeningDays; ++d) {
    for (const SlotPair& p : f.rounds[static_cast<size_t>(d)].pairs) {
      EXPECT_EQ(p.home + p.away, 2 * f.firstSeedSlot + f.seeds - 1);
      seeds.insert({p.home, p.away});
    }
  }
  EXPECT_EQ(games, 31);
  EXPECT_EQ(seeds, (std::set<int>{21, 22, 23, 24, 25, 26, 27, 28}));
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
