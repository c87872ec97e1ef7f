#include "platform/rng.h"

#include <chrono>

#include "platform/numeric.h"

namespace courtmere {
namespace {

uint64_t SplitMix(uint64_t& x) {
  uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
  return z ^ (z >> 31);
}

uint64_t ClockTicks() {
  return static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
         static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

}  // namespace

Rng::Rng() {
  Seed(ClockTicks());
}

Rng::Rng(uint64_t seed) : fixed_(true) {
  Seed(seed);
}

Rng Rng::FromOption(std::optional<uint64_t> seed) {
  return seed ? Rng(*seed) : Rng();
}

void Rng::Seed(uint64_t seed) {
  uint64_t x = seed;
  for (auto& word : s_) word = SplitMix(x);
}

int Rng::Roll(int n) {
  return Int(Rnd() * n + 1);
}

int Rng::R(double m, double a) {
  return CInt(Rnd() * m + a);
}

void Rng::Reseed() {
  uint64_t x = ++reseeds_ ^ (fixed_ ? 0 : ClockTicks());
  // Every word takes fresh bits: the very next output reads s_[1].
  for (auto& word : s_) word ^= SplitMix(x);
  // xoshiro must never hold an all-zero state.
  if ((s_[0] | s_[1] | s_[2] | s_[3]) == 0) s_[0] = 1;
}

}  // namespace courtmere
