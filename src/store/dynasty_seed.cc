#include "store/dynasty_seed.h"

#include <fmt/format.h>

#include "store/session.h"
#include "store/store.h"

namespace courtmere {

std::optional<uint64_t> LoadDynastySeed(Store& store) {
  if (!store.ColumnExists("Config", "Seed")) return std::nullopt;
  const std::optional<int64_t> seed = store.ScalarInt("SELECT Seed FROM Config WHERE IdConfig = 0");
  // The column is a signed 64-bit integer: the seed's bits are kept as they are.
  if (!seed) return std::nullopt;
  return static_cast<uint64_t>(*seed);
}

void SaveDynastySeed(Store& store, std::optional<uint64_t> seed) {
  if (!store.ColumnExists("Config", "Seed")) {
    store.ExecScript("ALTER TABLE Config ADD COLUMN Seed INTEGER");
  }
  if (seed) {
    store.Exec("UPDATE Config SET Seed = ? WHERE IdConfig = 0", static_cast<int64_t>(*seed));
  } else {
    store.Exec("UPDATE Config SET Seed = NULL WHERE IdConfig = 0");
  }
}

std::optional<uint64_t> FlowSeed(Session& session) {
  if (std::optional<uint64_t> seed = LoadDynastySeed(session.Db())) return seed;
  return session.givenSeed;
}

void SeedForPlace(Session& session, std::string_view flow) {
  const std::optional<uint64_t> seed = FlowSeed(session);
  if (!seed) return;
  const Config& c = session.config;
  const std::string place =
      fmt::format("{} {} {} week {} {}", flow, c.CurrYear, c.Stage, c.CurrWeek, c.CurrDay);
  session.rng = Rng(Rng::SeedFor(*seed, place));
}

}  // namespace courtmere
