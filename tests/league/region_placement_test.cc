// Placing a national field into its regions: seed lines go to home regions
// first and then to the free regions in order, and conference mates are
// moved apart, first out of one half of a region, then out of each other's
// way in the first two rounds, never at the price of a new early meeting.
#include "league/region_placement.h"

#include <gtest/gtest.h>

#include "league/bracket_slots.h"

namespace courtmere {
namespace {

Entrant Team(std::string school, std::string region, std::string conference) {
  return {std::move(school), 0, 0, std::move(region), std::move(conference)};
}

// Four regions of sixteen schools, each of its own conference.
RegionBrackets DistinctField() {
  RegionBrackets brackets;
  for (size_t r = 0; r < brackets.size(); ++r) {
    brackets[r].resize(17);
    for (int seed = 1; seed <= 16; ++seed) {
      const std::string name = std::string(kRegions[r]) + std::to_string(seed);
      brackets[r][static_cast<size_t>(seed)] = Team(name, std::string(kRegions[r]), name);
    }
  }
  return brackets;
}

void Join(RegionBrackets& b, std::string_view region, int seed, const std::string& conference) {
  b[static_cast<size_t>(RegionIndex(region))][static_cast<size_t>(seed)].conference = conference;
}

std::vector<int> SeedsOf(const RegionBrackets& b, std::string_view region,
                         const std::string& conference) {
  std::vector<int> seeds;
  const std::vector<Entrant>& r = b[static_cast<size_t>(RegionIndex(region))];
  for (int seed = 1; seed <= 16; ++seed) {
    if (r[static_cast<size_t>(seed)].conference == conference) seeds.push_back(seed);
  }
  return seeds;
}

TEST(PlaceSeedLines, HomeRegionFirstThenTheFreeRegionsInOrder) {
  const std::vector<Entrant> field = {Team("a", "East", "x"),  Team("b", "East", "x"),
                                      Team("c", "South", "x"), Team("d", "Midwest", "x"),
                                      Team("e", "South", "x"), Team("f", "South", "x"),
                                      Team("g", "South", "x"), Team("h", "Nowhere", "x")};
  const RegionBrackets b = PlaceSeedLines(field, 2);
  auto at = [&](std::string_view region, int seed) {
    return b[static_cast<size_t>(RegionIndex(region))][static_cast<size_t>(seed)].school;
  };
  EXPECT_EQ(at("East", 1), "a");
  EXPECT_EQ(at("West", 1), "b");  // East taken: the first free region
  EXPECT_EQ(at("South", 1), "c");
  EXPECT_EQ(at("Midwest", 1), "d");
  EXPECT_EQ(at("South", 2), "e");
  EXPECT_EQ(at("East", 2), "f");
  EXPECT_EQ(at("West", 2), "g");
  EXPECT_EQ(at("Midwest", 2), "h");
}

TEST(SeparateConferences, FirstPassMovesAMateToARegionWhoseHalfHasNone) {
  RegionBrackets b = DistinctField();
  Join(b, "East", 1, "Big");
  Join(b, "East", 8, "Big");
  SeparateConferences(b);
  EXPECT_EQ(SeedsOf(b, "East", "Big"), std::vector<int>{1});
  EXPECT_EQ(SeedsOf(b, "West", "Big"), std::vector<int>{8});
  // The school that came back to East is West's old seed 8.
  EXPECT_EQ(b[0][8].school, "West8");
}

TEST(SeparateConferences, MatesInOneHalfAreKeptFromMeetingInTheFirstTwoRounds) {
  RegionBrackets b = DistinctField();
  // Every top half holds the conference, so no first-pass swap can part them.
  Join(b, "East", 1, "Big");
  Join(b, "East", 8, "Big");
  for (std::string_view region : {"West", "Midwest", "South"}) Join(b, region, 4, "Big");
  SeparateConferences(b);
  int count = 0;
  for (std::string_view region : kRegions) {
    for (int seed : SeedsOf(b, region, "Big")) {
      ++count;
      for (int other : SecondPassNeighbours(seed)) {
        EXPECT_NE(
            b[static_cast<size_t>(RegionIndex(region))][static_cast<size_t>(other)].conference,
            "Big")
            << region << " " << seed << " meets " << other;
      }
    }
  }
  EXPECT_EQ(count, 5);
}

TEST(SeparateConferences, MatesStayWhenNoRegionCanTakeThem) {
  RegionBrackets b = DistinctField();
  for (RegionBrackets::value_type& region : b) {
    for (Entrant& e : region) e.conference = "One";
  }
  const RegionBrackets before = b;
  SeparateConferences(b);  // more than sixteen conflicts a region: the rest stay
  for (size_t r = 0; r < b.size(); ++r) {
    for (size_t s = 1; s < b[r].size(); ++s) EXPECT_EQ(b[r][s].school, before[r][s].school);
  }
}

}  // namespace
}  // namespace courtmere
