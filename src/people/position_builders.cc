#include "people/position_builders.h"

#include <array>
#include <initializer_list>

#include "platform/rng.h"

namespace courtmere {

namespace {

using Rating = int Player::*;

// A draw R(m, a): a whole number from a to m + a.
struct Span {
  double m;
  double a;
};
// Spans by class, in the order "Exc", "Good", "Average", "Poor".
using ByClass = std::array<Span, 4>;

int Draw(Rng& rng, Span s) {
  return rng.R(s.m, s.a);
}

void DrawByClass(Rng& rng, Player& p, std::initializer_list<Rating> ratings, const ByClass& spans,
                 Quality q) {
  for (Rating rating : ratings) p.*rating = Draw(rng, spans[static_cast<int>(q)]);
}

void DrawAny(Rng& rng, Player& p, std::initializer_list<Rating> ratings, Span span) {
  for (Rating rating : ratings) p.*rating = Draw(rng, span);
}

using P = Player;
constexpr ByClass kPotential = {{{15, 75}, {20, 60}, {20, 50}, {20, 30}}};
constexpr ByClass kPrime = {{{7, 70}, {17, 60}, {30, 45}, {30, 35}}};
constexpr ByClass kSecond = {{{12, 65}, {22, 55}, {35, 40}, {35, 30}}};
constexpr Span kEndurance = {350, 1800};

// Free throws follow his jump shot: spans for a Jumpshot above 70, 51 to 70,
// and below 51.
void DrawFreeThrow(Rng& rng, Player& p, Span high, Span middle, Span low) {
  if (p.Jumpshot > 70) {
    p.FreeThrow = Draw(rng, high);
  } else if (p.Jumpshot >= 51) {
    p.FreeThrow = Draw(rng, middle);
  } else {
    p.FreeThrow = Draw(rng, low);
  }
}

void Start(PositionCounters& counters, int position, int heightInches, Player& p) {
  ++counters[position];
  p.PlayerPosition = position;
  p.Height = HeightText(heightInches);
  p.Reach = heightInches;
}

}  // namespace

void BuildPG(Rng& rng, PositionCounters& counters, int height, Player& p, Quality q) {
  Start(counters, kPG, height, p);
  DrawByClass(rng, p, {&P::Handling, &P::Passing, &P::Quickness, &P::PerrDefense}, kPrime, q);
  DrawByClass(rng, p, {&P::ThreePoint, &P::Jumpshot}, kSecond, q);
  DrawByClass(rng, p, {&P::OffAware}, {{{17, 60}, {30, 45}, {40, 30}, {40, 25}}}, q);
  DrawByClass(rng, p, {&P::DefAware}, {{{27, 50}, {30, 40}, {40, 30}, {40, 25}}}, q);
  DrawByClass(rng, p, {&P::InScoring}, {{{25, 45}, {25, 40}, {30, 35}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::Potential}, kPotential, q);
  DrawAny(rng, p, {&P::DefReb, &P::OffReb}, height >= 73 ? Span{25, 40} : Span{15, 30});
  DrawAny(rng, p, {&P::Jumping}, {35, 35});
  DrawAny(rng, p, {&P::Strength}, {15, 30});
  DrawAny(rng, p, {&P::PostDefense}, {25, 25});
  DrawAny(rng, p, {&P::Endurance}, kEndurance);
  DrawAny(rng, p, {&P::Range}, {4, 20});
  DrawFreeThrow(rng, p, {35, 60}, {30, 55}, {25, 50});
}

void BuildSG(Rng& rng, PositionCounters& counters, int height, Player& p, Quality q) {
  Start(counters, kSG, height, p);
  DrawByClass(rng, p, {&P::ThreePoint, &P::Jumpshot, &P::Quickness, &P::PerrDefense}, kPrime, q);
  DrawByClass(rng, p, {&P::Handling, &P::Passing}, kSecond, q);
  DrawByClass(rng, p, {&P::InScoring}, {{{20, 50}, {25, 45}, {25, 40}, {25, 35}}}, q);
  DrawByClass(rng, p, {&P::OffAware}, {{{22, 55}, {30, 45}, {40, 30}, {40, 25}}}, q);
  DrawByClass(rng, p, {&P::DefAware}, {{{27, 50}, {30, 40}, {40, 30}, {40, 25}}}, q);
  DrawByClass(rng, p, {&P::Potential}, kPotential, q);
  DrawAny(rng, p, {&P::DefReb, &P::OffReb}, height >= 74 ? Span{25, 45} : Span{15, 35});
  DrawAny(rng, p, {&P::Jumping}, {30, 40});
  DrawAny(rng, p, {&P::Strength}, {20, 35});
  DrawAny(rng, p, {&P::PostDefense}, {25, 30});
  DrawAny(rng, p, {&P::Endurance}, kEndurance);
  DrawAny(rng, p, {&P::Range}, {3, 21});
  DrawFreeThrow(rng, p, {35, 60}, {30, 55}, {25, 50});
}

void BuildSF(Rng& rng, PositionCounters& counters, int height, Player& p, Quality q) {
  Start(counters, kSF, height, p);
  DrawByClass(rng, p, {&P::Jumpshot}, {{{17, 60}, {20, 50}, {20, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::OffReb}, {{{20, 55}, {20, 50}, {20, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::PerrDefense}, {{{17, 60}, {20, 50}, {25, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::OffAware}, {{{17, 60}, {27, 50}, {30, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::DefAware, &P::Jumping}, {{{12, 65}, {20, 55}, {35, 40}, {35, 30}}}, q);
  DrawByClass(rng, p, {&P::Quickness}, {{{20, 55}, {25, 45}, {30, 40}, {35, 30}}}, q);
  DrawByClass(rng, p, {&P::InScoring}, {{{15, 50}, {20, 45}, {25, 35}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::ThreePoint}, {{{15, 50}, {20, 45}, {20, 40}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::DefReb}, {{{15, 55}, {15, 50}, {20, 40}, {20, 35}}}, q);
  DrawByClass(rng, p, {&P::Passing}, {{{20, 50}, {15, 50}, {25, 40}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::PostDefense}, {{{15, 50}, {20, 45}, {20, 40}, {30, 25}}}, q);
  DrawByClass(rng, p, {&P::Handling}, {{{15, 50}, {15, 50}, {20, 40}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::Potential}, kPotential, q);
  DrawAny(rng, p, {&P::Strength}, {20, 35});
  DrawAny(rng, p, {&P::Endurance}, kEndurance);
  DrawAny(rng, p, {&P::Range}, p.ThreePoint < 51 ? Span{3, 19} : Span{2, 20});
  DrawFreeThrow(rng, p, {35, 50}, {30, 45}, {35, 40});
}

void BuildPF(Rng& rng, PositionCounters& counters, int height, Player& p, Quality q) {
  Start(counters, kPF, height, p);
  DrawByClass(rng, p, {&P::InScoring, &P::OffReb, &P::DefReb, &P::PostDefense}, kPrime, q);
  DrawByClass(rng, p, {&P::Jumping, &P::Jumpshot}, kSecond, q);
  DrawByClass(rng, p, {&P::OffAware}, {{{12, 60}, {17, 60}, {30, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::DefAware}, {{{17, 65}, {22, 55}, {35, 40}, {35, 30}}}, q);
  DrawByClass(rng, p, {&P::Passing}, {{{20, 55}, {25, 50}, {30, 40}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::PerrDefense}, {{{15, 55}, {20, 50}, {20, 40}, {25, 30}}}, q);
  DrawByClass(rng, p, {&P::Potential}, kPotential, q);
  DrawAny(rng, p, {&P::Quickness}, {20, 40});
  DrawAny(rng, p, {&P::ThreePoint}, {30, 30});
  p.Range = p.ThreePoint < 41 ? Draw(rng, {3, 18}) : 20;
  DrawAny(rng, p, {&P::Handling}, height < 84 ? Span{20, 40} : Span{20, 25});
  DrawAny(rng, p, {&P::Strength}, {35, 40});
  DrawAny(rng, p, {&P::Endurance}, kEndurance);
  DrawFreeThrow(rng, p, {35, 60}, {30, 55}, {25, 50});
}

void BuildC(Rng& rng, PositionCounters& counters, int height, Player& p, Quality q) {
  Start(counters, kC, height, p);
  DrawByClass(rng, p, {&P::InScoring, &P::OffReb, &P::DefReb, &P::PostDefense}, kPrime, q);
  DrawByClass(rng, p, {&P::Strength}, {{{12, 65}, {17, 60}, {30, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::Jumping}, kSecond, q);
  DrawByClass(rng, p, {&P::OffAware}, {{{12, 60}, {17, 60}, {30, 45}, {30, 35}}}, q);
  DrawByClass(rng, p, {&P::DefAware}, {{{17, 65}, {22, 55}, {35, 40}, {35, 30}}}, q);
  DrawByClass(rng, p, {&P::Passing, &P::Jumpshot}, {{{20, 55}, {25, 50}, {30, 40}, {30, 30}}}, q);
  DrawByClass(rng, p, {&P::Potential}, {{{12, 75}, {20, 60}, {20, 50}, {20, 30}}}, q);
  DrawAny(rng, p, {&P::Handling}, height < 84 ? Span{20, 40} : Span{20, 25});
  DrawAny(rng, p, {&P::Quickness}, {30, 30});
  DrawAny(rng, p, {&P::ThreePoint}, {30, 25});
  p.Range = p.ThreePoint < 41 ? Draw(rng, {8, 12}) : 20;
  DrawAny(rng, p, {&P::PerrDefense}, {25, 30});
  DrawAny(rng, p, {&P::Endurance}, kEndurance);
  DrawFreeThrow(rng, p, {30, 60}, {25, 55}, {20, 50});
}

void BuildPosition(int position, Rng& rng, PositionCounters& counters, int heightInches,
                   Player& player, Quality q) {
  switch (position) {
    case kPG:
      return BuildPG(rng, counters, heightInches, player, q);
    case kSG:
      return BuildSG(rng, counters, heightInches, player, q);
    case kSF:
      return BuildSF(rng, counters, heightInches, player, q);
    case kPF:
      return BuildPF(rng, counters, heightInches, player, q);
    default:
      return BuildC(rng, counters, heightInches, player, q);
  }
}

}  // namespace courtmere
