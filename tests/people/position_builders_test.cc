// The five builders' rating tables: over many draws every rating of every
// class reaches exactly the two ends of its span, and the ratings that
// hang on the height, the jump shot or the three-point shot take the span
// of the right side of their edge.
#include "people/position_builders.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "platform/rng.h"

namespace courtmere {
namespace {

// R(m, a): a whole number from a to a + m.
struct Span {
  int m;
  int a;
};
// Spans in the order "Exc", "Good", "Average", "Poor".
using ByClass = std::array<Span, 4>;
constexpr std::array<Quality, 4> kClasses = {Quality::kExc, Quality::kGood, Quality::kAverage,
                                             Quality::kPoor};

struct RatingRow {
  int Player::*rating;
  const char* name;
  ByClass spans;
};

// A rating drawn from the same span whatever the class.
RatingRow Any(int Player::*rating, const char* name, int m, int a) {
  return {rating, name, {{{m, a}, {m, a}, {m, a}, {m, a}}}};
}

constexpr ByClass kPrime = {{{7, 70}, {17, 60}, {30, 45}, {30, 35}}};
constexpr ByClass kSecond = {{{12, 65}, {22, 55}, {35, 40}, {35, 30}}};
constexpr ByClass kPotential = {{{15, 75}, {20, 60}, {20, 50}, {20, 30}}};

struct Range {
  int low = INT_MAX;
  int high = INT_MIN;
  void Add(int v) {
    low = std::min(low, v);
    high = std::max(high, v);
  }
};

constexpr int kDraws = 3000;

std::vector<Player> Build(int position, int height, Quality q) {
  Rng rng(position * 131 + static_cast<int>(q) * 17 + height);
  PositionCounters counters;
  std::vector<Player> players(kDraws);
  for (Player& p : players) BuildPosition(position, rng, counters, height, p, q);
  EXPECT_EQ(counters[position], kDraws);
  return players;
}

void ExpectSpans(int position, int height, const std::vector<RatingRow>& rows) {
  for (int c = 0; c < 4; ++c) {
    const std::vector<Player> players = Build(position, height, kClasses[c]);
    for (const RatingRow& row : rows) {
      Range seen;
      for (const Player& p : players) seen.Add(p.*row.rating);
      const Span s = row.spans[c];
      EXPECT_EQ(seen.low, s.a) << "position " << position << " class " << c << " " << row.name;
      EXPECT_EQ(seen.high, s.a + s.m)
          << "position " << position << " class " << c << " " << row.name;
    }
    for (const Player& p : players) {
      EXPECT_EQ(p.PlayerPosition, position);
      EXPECT_EQ(p.Reach, height);
    }
  }
}

// Every rating of every builder spans its class's row; the rebounding of
// guards from 73 (PG) and 74 (SG) inches, and the handling of big men from
// 84 inches, take the span of the other side of the edge.
TEST(BuildPosition, EveryRatingSpansItsClassesRow) {
  ExpectSpans(kPG, 72,
              {{&Player::Handling, "Handling", kPrime},
               {&Player::Passing, "Passing", kPrime},
               {&Player::Quickness, "Quickness", kPrime},
               {&Player::PerrDefense, "PerrDefense", kPrime},
               {&Player::ThreePoint, "ThreePoint", kSecond},
               {&Player::Jumpshot, "Jumpshot", kSecond},
               {&Player::OffAware, "OffAware", {{{17, 60}, {30, 45}, {40, 30}, {40, 25}}}},
               {&Player::DefAware, "DefAware", {{{27, 50}, {30, 40}, {40, 30}, {40, 25}}}},
               {&Player::InScoring, "InScoring", {{{25, 45}, {25, 40}, {30, 35}, {30, 30}}}},
               {&Player::Potential, "Potential", kPotential},
               Any(&Player::DefReb, "DefReb", 15, 30),
               Any(&Player::OffReb, "OffReb", 15, 30),
               Any(&Player::Jumping, "Jumping", 35, 35),
               Any(&Player::Strength, "Strength", 15, 30),
               Any(&Player::PostDefense, "PostDefense", 25, 25),
               Any(&Player::Range, "Range", 4, 20)});
  ExpectSpans(kPG, 73,
              {Any(&Player::DefReb, "DefReb", 25, 40), Any(&Player::OffReb, "OffReb", 25, 40)});
  ExpectSpans(kSG, 73,
              {{&Player::ThreePoint, "ThreePoint", kPrime},
               {&Player::Jumpshot, "Jumpshot", kPrime},
               {&Player::Quickness, "Quickness", kPrime},
               {&Player::PerrDefense, "PerrDefense", kPrime},
               {&Player::Handling, "Handling", kSecond},
               {&Player::Passing, "Passing", kSecond},
               {&Player::InScoring, "InScoring", {{{20, 50}, {25, 45}, {25, 40}, {25, 35}}}},
               {&Player::OffAware, "OffAware", {{{22, 55}, {30, 45}, {40, 30}, {40, 25}}}},
               {&Player::DefAware, "DefAware", {{{27, 50}, {30, 40}, {40, 30}, {40, 25}}}},
               {&Player::Potential, "Potential", kPotential},
               Any(&Player::DefReb, "DefReb", 15, 35),
               Any(&Player::OffReb, "OffReb", 15, 35),
               Any(&Player::Jumping, "Jumping", 30, 40),
               Any(&Player::Strength, "Strength", 20, 35),
               Any(&Player::PostDefense, "PostDefense", 25, 30),
               Any(&Player::Range, "Range", 3, 21)});
  ExpectSpans(kSG, 74,
              {Any(&Player::DefReb, "DefReb", 25, 45), Any(&Player::OffReb, "OffReb", 25, 45)});
  ExpectSpans(kSF, 77,
              {{&Player::Jumpshot, "Jumpshot", {{{17, 60}, {20, 50}, {20, 45}, {30, 35}}}},
               {&Player::OffReb, "OffReb", {{{20, 55}, {20, 50}, {20, 45}, {30, 35}}}},
               {&Player::PerrDefense, "PerrDefense", {{{17, 60}, {20, 50}, {25, 45}, {30, 35}}}},
               {&Player::OffAware, "OffAware", {{{17, 60}, {27, 50}, {30, 45}, {30, 35}}}},
               {&Player::DefAware, "DefAware", {{{12, 65}, {20, 55}, {35, 40}, {35, 30}}}},
               {&Player::Jumping, "Jumping", {{{12, 65}, {20, 55}, {35, 40}, {35, 30}}}},
               {&Player::Quickness, "Quickness", {{{20, 55}, {25, 45}, {30, 40}, {35, 30}}}},
               {&Player::InScoring, "InScoring", {{{15, 50}, {20, 45}, {25, 35}, {30, 30}}}},
               {&Player::ThreePoint, "ThreePoint", {{{15, 50}, {20, 45}, {20, 40}, {30, 30}}}},
               {&Player::DefReb, "DefReb", {{{15, 55}, {15, 50}, {20, 40}, {20, 35}}}},
               {&Player::Passing, "Passing", {{{20, 50}, {15, 50}, {25, 40}, {30, 35}}}},
               {&Player::PostDefense, "PostDefense", {{{15, 50}, {20, 45}, {20, 40}, {30, 25}}}},
               {&Player::Handling, "Handling", {{{15, 50}, {15, 50}, {20, 40}, {30, 30}}}},
               {&Player::Potential, "Potential", kPotential},
               Any(&Player::Strength, "Strength", 20, 35)});
  ExpectSpans(kPF, 83,
              {{&Player::InScoring, "InScoring", kPrime},
               {&Player::OffReb, "OffReb", kPrime},
               {&Player::DefReb, "DefReb", kPrime},
               {&Player::PostDefense, "PostDefense", kPrime},
               {&Player::Jumping, "Jumping", kSecond},
               {&Player::Jumpshot, "Jumpshot", kSecond},
               {&Player::OffAware, "OffAware", {{{12, 60}, {17, 60}, {30, 45}, {30, 35}}}},
               {&Player::DefAware, "DefAware", {{{17, 65}, {22, 55}, {35, 40}, {35, 30}}}},
               {&Player::Passing, "Passing", {{{20, 55}, {25, 50}, {30, 40}, {30, 30}}}},
               {&Player::PerrDefense, "PerrDefense", {{{15, 55}, {20, 50}, {20, 40}, {25, 30}}}},
               {&Player::Potential, "Potential", kPotential},
               Any(&Player::Quickness, "Quickness", 20, 40),
               Any(&Player::ThreePoint, "ThreePoint", 30, 30),
               Any(&Player::Handling, "Handling", 20, 40),
               Any(&Player::Strength, "Strength", 35, 40)});
  ExpectSpans(kPF, 84, {Any(&Player::Handling, "Handling", 20, 25)});
  ExpectSpans(kC, 83,
              {{&Player::InScoring, "InScoring", kPrime},
               {&Player::OffReb, "OffReb", kPrime},
               {&Player::DefReb, "DefReb", kPrime},
               {&Player::PostDefense, "PostDefense", kPrime},
               {&Player::Strength, "Strength", {{{12, 65}, {17, 60}, {30, 45}, {30, 35}}}},
               {&Player::Jumping, "Jumping", kSecond},
               {&Player::OffAware, "OffAware", {{{12, 60}, {17, 60}, {30, 45}, {30, 35}}}},
               {&Player::DefAware, "DefAware", {{{17, 65}, {22, 55}, {35, 40}, {35, 30}}}},
               {&Player::Passing, "Passing", {{{20, 55}, {25, 50}, {30, 40}, {30, 30}}}},
               {&Player::Jumpshot, "Jumpshot", {{{20, 55}, {25, 50}, {30, 40}, {30, 30}}}},
               {&Player::Potential, "Potential", {{{12, 75}, {20, 60}, {20, 50}, {20, 30}}}},
               Any(&Player::Handling, "Handling", 20, 40),
               Any(&Player::Quickness, "Quickness", 30, 30),
               Any(&Player::ThreePoint, "ThreePoint", 30, 25),
               Any(&Player::PerrDefense, "PerrDefense", 25, 30)});
  ExpectSpans(kC, 84, {Any(&Player::Handling, "Handling", 20, 25)});
}

// The spans of a rating that hangs on another one, by the other's band.
struct DependentBands {
  int position;
  int Player::*on;      // the rating the span hangs on
  int Player::*rating;  // the rating drawn
  int lowEdge;          // the low band is below this value of `on`
  int highEdge;         // the high band is above this value of `on`
  Span low, middle, high;
};

void ExpectDependentSpans(const DependentBands& d) {
  std::array<Range, 3> seen;
  for (Quality q : kClasses) {
    for (const Player& p : Build(d.position, 80, q)) {
      const int on = p.*d.on;
      seen[on < d.lowEdge ? 0 : on > d.highEdge ? 2 : 1].Add(p.*d.rating);
    }
  }
  const std::array<Span, 3> spans = {d.low, d.middle, d.high};
  for (int band = 0; band < 3; ++band) {
    if (spans[band].m < 0) continue;  // no such band
    EXPECT_EQ(seen[band].low, spans[band].a) << "position " << d.position << " band " << band;
    EXPECT_EQ(seen[band].high, spans[band].a + spans[band].m)
        << "position " << d.position << " band " << band;
  }
}

// Free throws follow the jump shot's bands; a shooting range follows the
// three-point shot.
TEST(DependentRatings, FollowTheBandsOfTheirRating) {
  for (int position : {kPG, kSG, kPF}) {
    ExpectDependentSpans(
        {position, &Player::Jumpshot, &Player::FreeThrow, 51, 70, {25, 50}, {30, 55}, {35, 60}});
  }
  ExpectDependentSpans(
      {kSF, &Player::Jumpshot, &Player::FreeThrow, 51, 70, {35, 40}, {30, 45}, {35, 50}});
  ExpectDependentSpans(
      {kC, &Player::Jumpshot, &Player::FreeThrow, 51, 70, {20, 50}, {25, 55}, {30, 60}});

  constexpr Span kNone = {-1, 0};
  // A small forward below 51 in threes: 19 to 22, else 20 to 22.
  ExpectDependentSpans({kSF, &Player::ThreePoint, &Player::Range, 51, 50, {3, 19}, kNone, {2, 20}});
  // Big men below 41 in threes draw a range; the others shoot from 20.
  ExpectDependentSpans({kPF, &Player::ThreePoint, &Player::Range, 41, 40, {3, 18}, kNone, {0, 20}});
  ExpectDependentSpans({kC, &Player::ThreePoint, &Player::Range, 41, 40, {8, 12}, kNone, {0, 20}});
}

}  // namespace
}  // namespace courtmere
