#include "platform/rng.h"

#include <chrono>

#include "platform/numeric.h"

namespace courtmere {
uint64_t Rng::ClockTicks() {
  return static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
         static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

Rng::Rng() {
  Seed(ClockTicks());
}

Rng::Rng(uint64_t seed) : seed_(seed), fixed_(true) {
  Seed(seed);
}

uint64_t Rng::SeedFor(uint64_t seed, std::string_view place) {
  // FNV-1a over the place's text, then two rounds of SplitMix with the seed.
  uint64_t hash = 0xcbf29ce484222325ULL;
  for (unsigned char c : place) hash = (hash ^ c) * 0x100000001b3ULL;
  uint64_t x = seed;
  x ^= SplitMix(hash);
  return SplitMix(x);
}

Rng Rng::FromOption(std::optional<uint64_t> seed) {
  return seed ? Rng(*seed) : Rng();
}

void Rng::Seed(uint64_t seed) {
  uint64_t x = seed;
  state_ = SplitMix(x);
}

void Rng::MixClock(uint64_t x) {
  uint64_t clock = x ^ ClockTicks();
  state_ ^= SplitMix(clock);
}

int Rng::R(double m, double a) {
  return CInt(Rnd() * m + a);
}

}  // namespace courtmere
