#include "people/rating.h"

#include <initializer_list>
#include <span>

#include "people/grading.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

using Rating = int Player::*;

// The constant of the reach terms: a reach of 76 inches adds nothing.
constexpr int kReachBase = 76;

// The weights are written in hundredths so that the sum is a whole number and
// only the division rounds: a player even across the row rates exactly his
// rating, since each divisor is the sum of its row's weights.
double WeightedMean(const Player& p, std::initializer_list<std::pair<int, Rating>> terms,
                    int divisor) {
  int sum = 0;
  for (const auto& [weight, rating] : terms) sum += weight * (p.*rating);
  return static_cast<double>(sum) / divisor;
}

void PrimaryGain(Rng& rng, Player& p, Rating rating) {
  const int potentialStep = Int(rng.Rnd() * 10 + 20);
  const int bonusStep = Int(rng.Rnd() * 20 + 10);
  p.*rating = CInt(static_cast<double>(p.Potential) / potentialStep + p.*rating + 30.0 / bonusStep);
}

void SecondaryGain(Rng& rng, Player& p, Rating rating) {
  const int bonusStep = Int(rng.Rnd() * 20 + 10);
  p.*rating = CInt(p.Potential / 40.0 + p.*rating + 30.0 / (bonusStep * 1.5));
}

struct GainTable {
  std::span<const Rating> primary;
  std::span<const Rating> secondary;
};

using P = Player;
constexpr Rating kGuardPrimary[] = {&P::Handling, &P::Passing, &P::PerrDefense, &P::ThreePoint,
                                    &P::Jumpshot};
constexpr Rating kGuardSecondary[] = {&P::InScoring, &P::OffReb, &P::DefReb};
constexpr Rating kSmallForwardPrimary[] = {&P::Jumpshot, &P::OffReb, &P::PerrDefense,
                                           &P::ThreePoint, &P::InScoring};
constexpr Rating kSmallForwardSecondary[] = {&P::DefReb, &P::Passing, &P::Handling,
                                             &P::PostDefense};
constexpr Rating kPowerForwardPrimary[] = {&P::InScoring, &P::OffReb, &P::DefReb, &P::PostDefense,
                                           &P::Jumpshot};
constexpr Rating kPowerForwardSecondary[] = {&P::Handling, &P::PerrDefense, &P::Passing,
                                             &P::ThreePoint};
constexpr Rating kCenterPrimary[] = {&P::InScoring, &P::OffReb, &P::DefReb, &P::PostDefense,
                                     &P::Passing};
constexpr Rating kCenterSecondary[] = {&P::Handling, &P::PerrDefense, &P::Jumpshot};

GainTable GainsFor(int position) {
  switch (position) {
    case kPG:
    case kSG:
      return {kGuardPrimary, kGuardSecondary};
    case kSF:
      return {kSmallForwardPrimary, kSmallForwardSecondary};
    case kPF:
      return {kPowerForwardPrimary, kPowerForwardSecondary};
    case kC:
      return {kCenterPrimary, kCenterSecondary};
    default:
      return {};
  }
}

}  // namespace

void ComputeDerivedRatings(Player& p) {
  p.ShotBlock = CInt(0.75 * p.PostDefense + 0.25 * p.Jumping + p.Reach - kReachBase);
  p.Steal = CInt(0.75 * p.PerrDefense + 0.25 * p.Quickness);
  const double athletic = 0.75 * p.Jumping + 0.5 * p.Strength + 0.5 * p.Quickness + p.Reach;
  p.OffRebounding = CInt(athletic + p.OffReb - kReachBase);
  p.DefRebounding = CInt(athletic + p.DefReb - kReachBase);
}

void ComputeOverall(Player& p) {
  switch (p.PlayerPosition) {
    case kPG:
      p.Overall = WeightedMean(p,
                               {{80, &P::Passing},
                                {80, &P::Handling},
                                {80, &P::PerrDefense},
                                {75, &P::Jumpshot},
                                {60, &P::Quickness},
                                {60, &P::ThreePoint}},
                               435);
      break;
    case kSG:
      p.Overall = WeightedMean(p,
                               {{80, &P::ThreePoint},
                                {80, &P::Jumpshot},
                                {80, &P::PerrDefense},
                                {75, &P::Handling},
                                {60, &P::Quickness},
                                {60, &P::Passing}},
                               435);
      break;
    case kSF:
      p.Overall = WeightedMean(p,
                               {{80, &P::OffReb},
                                {80, &P::Jumpshot},
                                {80, &P::PerrDefense},
                                {60, &P::InScoring},
                                {50, &P::Quickness},
                                {50, &P::ThreePoint}},
                               400);
      break;
    case kPF:
      p.Overall = WeightedMean(p,
                               {{80, &P::OffReb},
                                {80, &P::InScoring},
                                {80, &P::DefReb},
                                {80, &P::PostDefense},
                                {60, &P::Jumpshot},
                                {40, &P::Passing}},
                               420);
      break;
    case kC:
      p.Overall = WeightedMean(p,
                               {{80, &P::OffReb},
                                {80, &P::InScoring},
                                {80, &P::DefReb},
                                {80, &P::PostDefense},
                                {50, &P::Strength},
                                {40, &P::Passing}},
                               410);
      break;
    default:
      break;  // an unknown position keeps its Overall
  }
}

double AthleticValue(const Player& p) {
  const double e = 0.3 * p.Endurance / 21;
  switch (p.PlayerPosition) {
    case kPG:
    case kSG:
      return (0.2 * p.Strength + p.Quickness + 0.7 * p.Jumping + e) / 2.2;
    case kSF:
      return (0.3 * p.Strength + 0.6 * p.Quickness + p.Jumping + e) / 2.2;
    case kPF:
      return (0.7 * p.Strength + 0.3 * p.Quickness + 0.7 * p.Jumping + e) / 2.0;
    case kC:
      return (0.1 * p.Quickness + p.Strength + 0.6 * p.Jumping + e) / 2.0;
    default:
      return 0;
  }
}

void RatePlayer(Session& session, Player& player) {
  ComputeDerivedRatings(player);
  ComputeOverall(player);
  GradePlayer(session, player);
}

void CapRatings(Player& p) {
  for (Rating rating :
       {&Player::Strength, &Player::OffAware, &Player::DefAware, &Player::Handling,
        &Player::Passing, &Player::DefReb, &Player::OffReb, &Player::PerrDefense,
        &Player::PostDefense, &Player::InScoring, &Player::Jumpshot, &Player::ThreePoint}) {
    if (p.*rating > 100) p.*rating = 100;
  }
}

void DevelopOneYear(Rng& rng, Player& p) {
  const GainTable gains = GainsFor(p.PlayerPosition);
  for (Rating rating : gains.primary) PrimaryGain(rng, p, rating);
  for (Rating rating : gains.secondary) SecondaryGain(rng, p, rating);
  if (p.PlayerPosition == kC) {
    PrimaryGain(rng, p, &Player::Strength);
  } else {
    SecondaryGain(rng, p, &Player::Strength);
  }
  SecondaryGain(rng, p, &Player::OffAware);
  SecondaryGain(rng, p, &Player::DefAware);
}

void DevelopOneYear(Session& session, Player& player, int rerate) {
  DevelopOneYear(session.rng, player);
  if (rerate == 1) {
    CapRatings(player);
    RatePlayer(session, player);
  }
}

}  // namespace courtmere
