#include "league/bracket_table.h"

#include <fmt/format.h>

#include "league/seeded_name.h"
#include "store/store.h"

namespace courtmere {

std::optional<SlotRow> ReadSlot(Store& store, const BracketTable& table, std::string_view group,
                                int slot) {
  const std::string host = table.hasHost ? "HostCity" : "''";
  Rows rows = store.Query(fmt::format("SELECT SchoolName, {}, Points, BoldFlag FROM {} "
                                      "WHERE Conference = ? AND Seed = ? ORDER BY Id LIMIT 1",
                                      host, table.name),
                          group, slot);
  if (!rows.Next()) return std::nullopt;
  return SlotRow{rows.Text(0), rows.Text(1), rows.Int(2), rows.Int(3)};
}

std::map<int, SlotRow> ReadGroup(Store& store, const BracketTable& table, std::string_view group) {
  const std::string host = table.hasHost ? "HostCity" : "''";
  std::map<int, SlotRow> slots;
  for (Rows rows = store.Query(fmt::format("SELECT Seed, SchoolName, {}, Points, BoldFlag FROM {} "
                                           "WHERE Conference = ? ORDER BY Id",
                                           host, table.name),
                               group);
       rows.Next();) {
    slots.try_emplace(rows.Int(0), SlotRow{rows.Text(1), rows.Text(2), rows.Int(3), rows.Int(4)});
  }
  return slots;
}

bool InsertSlot(Store& store, const BracketTable& table, std::string_view group, int slot,
                const std::string& school, const std::string& host) {
  if (ReadSlot(store, table, group, slot)) return false;
  if (table.hasHost) {
    store.Exec(fmt::format("INSERT INTO {} (SchoolName, Seed, Conference, HostCity) "
                           "VALUES (?, ?, ?, ?)",
                           table.name),
               school, slot, group, host);
  } else {
    store.Exec(
        fmt::format("INSERT INTO {} (SchoolName, Seed, Conference) VALUES (?, ?, ?)", table.name),
        school, slot, group);
  }
  return true;
}

void WriteSlotResult(Store& store, const BracketTable& table, std::string_view group, int slot,
                     int points, bool won) {
  store.Exec(fmt::format("UPDATE {} SET Points = ?, BoldFlag = ? WHERE Conference = ? AND Seed = ?",
                         table.name),
             points, won ? 1 : 0, group, slot);
}

std::string GameName(const BracketTable& table, int slot, const std::string& school) {
  if (table.seedNames && slot <= kLastSeedSlot) return SeededName{slot, school}.Text();
  return school;
}

}  // namespace courtmere
