// The dynasty's random number generator.
//
// One Rng serves a running dynasty. In clock mode (a normal run) it starts
// from the clock and Reseed(), which the game asks for at many points, mixes
// a counter and from time to time the clock into its state. In fixed mode (tests, benchmarks,
// --seed) Reseed() mixes only a running counter, so a whole game, season or dynasty replays bit for
// bit from the same seed.
//
// The generator is wyrand: one 64-bit word of state, stepped by an odd
// constant, each output a 128-bit multiply hash of it. A draw is a handful of
// instructions and Reseed() a multiply and an xor, since the game reseeds
// before most of its draws.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace courtmere {

class Rng {
 public:
  // Clock mode.
  Rng();
  // Fixed mode with the given seed.
  explicit Rng(uint64_t seed);
  // Fixed mode when a seed is given, clock mode otherwise.
  static Rng FromOption(std::optional<uint64_t> seed);

  // A uniform number in [0, 1).
  double Rnd() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }
  // Int(Rnd * n + c) for whole n >= 0 and c, worked in whole numbers: Rnd
  // is k / 2^53, so the value is floor(k * n / 2^53) + c exactly. The
  // floating-point form agrees except for a draw within one rounding step of
  // a whole number (about one in 2^40), and takes a longer chain of
  // instructions, which the dice-driven branches of the game wait for.
  int IntRnd(int n, int c) {
    const uint64_t k = Next() >> 11;
    // Below 2^11, k * n fits in 64 bits (the game's dice, whose n is known
    // when this is inlined, take this way).
    if (n < 2048) return static_cast<int>((k * static_cast<uint64_t>(n)) >> 53) + c;
    const unsigned __int128 scaled = static_cast<unsigned __int128>(k) * static_cast<uint64_t>(n);
    return static_cast<int>(static_cast<uint64_t>(scaled >> 53)) + c;
  }
  // Int(Rnd * n + 1): a whole number from 1 to n.
  int Roll(int n) { return IntRnd(n, 1); }
  // round(Rnd * m + a), ties to even.
  int R(double m, double a);
  // Mixes fresh entropy (a counter, and in clock mode now and then the clock)
  // into the state. Inline: the possession loop reseeds before most of its
  // draws, some 1,600 times a game.
  [[gnu::always_inline]] void Reseed() {
    const uint64_t x = ++reseeds_;
    // Design decision: reading the clocks costs some 50 ns, more than the
    // rest of a reseed many times over, so clock mode takes them at every
    // 64th reseed only; the state is unpredictable from the first seed on.
    if (!fixed_ && (x & 63) == 0) {
      MixClock(x);
      return;
    }
    // Every output hashes the whole state, so moving the state by a multiple
    // of the counter, different at every reseed, is enough to turn the stream.
    state_ ^= x * 0x9e3779b97f4a7c15ULL;
  }

  bool Fixed() const { return fixed_; }
  // The seed a fixed-mode generator was made with; none in clock mode.
  std::optional<uint64_t> FixedSeed() const {
    return fixed_ ? std::optional<uint64_t>(seed_) : std::nullopt;
  }

  // The seed of one place of a flow (a day of the calendar): the flow's seed
  // hashed with the text naming the place, so that every place has a stream
  // of its own that depends on nothing that ran before it.
  static uint64_t SeedFor(uint64_t seed, std::string_view place);

  // Raw 64-bit output.
  uint64_t Next() {
    state_ += 0xa0761d6478bd642fULL;
    const unsigned __int128 product =
        static_cast<unsigned __int128>(state_) * (state_ ^ 0xe7037ed1a0b428dbULL);
    return static_cast<uint64_t>(product >> 64) ^ static_cast<uint64_t>(product);
  }

 private:
  static uint64_t SplitMix(uint64_t& x) {
    uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
  }
  static uint64_t ClockTicks();
  // Clock mode's reseed: the clock, hashed with the counter x, into the state.
  void MixClock(uint64_t x);
  void Seed(uint64_t seed);

  uint64_t state_ = 0;
  uint64_t seed_ = 0;
  uint64_t reseeds_ = 0;
  bool fixed_ = false;
};

}  // namespace courtmere
