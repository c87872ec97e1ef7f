#include "store/blank_store.h"

#include <filesystem>
#include <string>

#include "store/embedded_data.h"
#include "store/seed_loader.h"
#include "store/store.h"

namespace courtmere {

std::vector<std::string> SeedTables() {
  std::vector<std::string> tables;
  for (const embedded::SeedFile& file : embedded::SeedFiles()) {
    tables.push_back(SeedTableOf(file.path));
  }
  return tables;
}

// InjuryList: a row with WeeksOut 1 is a day-to-day knock. The injury roll
// gives it no weeks, so TimeInjured stays 0: the player finishes the game, but
// Health names the injury, which keeps him off depth charts until the week's
// healing pass (that pass always clears a TimeInjured of 0, whatever the
// trainer's roll). It costs him the rest of the current week.
void BuildBlankStore(const std::filesystem::path& file) {
  std::filesystem::path temp = file;
  temp += ".new";
  std::filesystem::remove(temp);
  {
    // SQLite makes the file on open with the create flag.
    ConfigureSqliteOnce();
    SQLite::Database create(temp.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  }
  try {
    Store store(temp);
    Store::Transaction tx(store);
    store.ExecScript(std::string(embedded::kSchemaSql));
    for (const embedded::SeedFile& seed : embedded::SeedFiles()) {
      LoadSeedCsv(store, seed.path, SeedTableOf(seed.path), seed.text);
    }
    tx.Commit();
  } catch (...) {
    std::filesystem::remove(temp);
    throw;
  }
  std::filesystem::rename(temp, file);
}

}  // namespace courtmere
