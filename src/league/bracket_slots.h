// The fixed shape of the three postseason brackets: which bracket slots meet
// on which day and which slot the winner moves to.
//
// A bracket table (ConfTourney, NCTTourney, ACTTourney) holds one row per
// team and slot. A slot is a place in the bracket, not a seed: the seeds
// stand in the low slots, and each game's winner gets a row in the slot
// above. In every pair the first slot is the home side.
//
// Conference tournament, the same slots whatever the size of the field:
//   Thursday  8-9, 7-10, 6-11, 5-12, 4-13, 3-14  -> 15 to 20 (field - 8 games)
//   Friday    1-15, 19-18, 2-16, 20-17           -> 21 to 24
//   Saturday  21-22, 23-24                       -> 25, 26
//   Sunday    25-26                              -> 27, the champion
// A seed with a bye stands directly in its Friday slot.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace courtmere {

struct SlotPair {
  int home = 0;
  int away = 0;
};

// ---- Conference tournament ----

inline constexpr int kConfSmallestField = 8;
inline constexpr int kConfLargestField = 14;
inline constexpr int kConfChampionSlot = 27;

struct ConfRound {
  std::string_view day;
  std::span<const SlotPair> pairs;
  int firstTarget = 0;  // the winner of the i-th pair (from 0) goes to firstTarget + i
};

// The round played on `day` of week 16; null on a day without one.
const ConfRound* ConfRoundOn(std::string_view day);
// The round after `day`'s; null after Sunday's final.
const ConfRound* ConfRoundAfter(std::string_view day);
// The pairs of `round` that are played with a field of `field` teams: on
// Thursday only the first field - 8, on the other days all of them.
std::span<const SlotPair> ConfPairsPlayed(const ConfRound& round, int field);

// The slot of `seed` in a field of `field`: its own number, or for seeds 3 to
// 8 the Friday slot 23 - seed when the field is below 17 - seed (a bye).
int ConfSeedSlot(int seed, int field);
// The seed that stands in `slot` from the start, 0 when none does (a slot a
// Thursday winner takes, or one above the field).
int ConfSeedInSlot(int slot, int field);

// ---- National tournaments ----

// The regions in the order the placement fills them and the conference
// separation takes its turns.
inline constexpr std::array<std::string_view, 4> kRegions = {"East", "West", "Midwest", "South"};
// The order the sites are drawn in and the games written in; the Final Four
// pairs the first two and the last two.
inline constexpr std::array<std::string_view, 4> kRegionsBySite = {"Midwest", "South", "East",
                                                                   "West"};
// The index of a region in kRegions; -1 for any other text.
int RegionIndex(std::string_view region);

inline constexpr int kRegionChampionSlot = 51;
inline constexpr std::array<int, 2> kSemifinalSlots = {61, 62};
inline constexpr int kChampionSlot = 71;

// A day of the regional rounds: the regions that play, their pairs and the
// slot the first pair's winner moves to.
struct RegionRound {
  int week = 0;
  std::string_view day;
  std::span<const std::string_view> regions;
  std::span<const SlotPair> pairs;
  int firstTarget = 0;
};

struct DayRef {
  int week = 0;  // 0: no day
  std::string_view day;
};

// After the games of `played`, the next rounds are written: the games of
// the days in `writes`.
struct RoundLink {
  DayRef played;
  std::array<DayRef, 2> writes;
};

// The days of a national tournament: its regional rounds, the semifinals
// (Midwest against South, East against West, from slot 51 of each) and the
// final (61 against 62).
struct NationalFormat {
  std::string_view prefix;         // before a region in the table and in GameType
  std::string_view finalsGroup;    // the Conference of the rows 61, 62 and 71
  std::string_view semifinalType;  // GameType of the semifinals
  std::string_view finalType;      // GameType of the final
  int seeds = 0;                   // seeds a region
  int firstSeedSlot = 0;           // the slot of seed 1
  std::span<const RegionRound> rounds;
  int semifinalWeek = 0;
  std::string_view semifinalDay;
  int finalWeek = 0;
  std::string_view finalDay;
  std::span<const RoundLink> links;
};

// The first two days of a format's rounds hold its first round, which the
// selection writes; every later day is written after the day before it.
inline constexpr int kOpeningDays = 2;

const NationalFormat& NctFormat();
const NationalFormat& ActFormat();

// The NCT's halves of a region, in the order the conference separation reads
// them, and the seeds the second separation pass looks at beside seed b.
inline constexpr std::array<int, 8> kTopHalf = {1, 4, 5, 8, 9, 12, 13, 16};
inline constexpr std::array<int, 8> kBottomHalf = {2, 3, 6, 7, 10, 11, 14, 15};
bool InTopHalf(int seed);
std::span<const int> SecondPassNeighbours(int seed);

}  // namespace courtmere
