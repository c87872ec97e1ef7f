#include "league/tourney_history.h"

#include <fmt/format.h>

#include "store/store.h"

namespace courtmere {

namespace {

void EnsureYearRow(Store& store, std::string_view table, int year) {
  if (store.ScalarInt(fmt::format("SELECT count(*) FROM {} WHERE Year = ?", table), year)
          .value_or(0) == 0) {
    store.Exec(fmt::format("INSERT INTO {} (Year) VALUES (?)", table), year);
  }
}

std::string SchoolAt(const std::vector<Entrant>& ranked, int place) {
  if (place < 1 || place > static_cast<int>(ranked.size())) return {};
  return ranked[static_cast<size_t>(place - 1)].school;
}

}  // namespace

void WriteBubble(Store& store, std::string_view table, int year, const std::vector<Entrant>& ranked,
                 int in) {
  EnsureYearRow(store, table, year);
  store.Exec(fmt::format("UPDATE {} SET LastIn1 = ?, LastIn2 = ?, LastIn3 = ?, LastIn4 = ?, "
                         "FirstOut1 = ?, FirstOut2 = ?, FirstOut3 = ?, FirstOut4 = ? "
                         "WHERE Year = ?",
                         table),
             SchoolAt(ranked, in - 3), SchoolAt(ranked, in - 2), SchoolAt(ranked, in - 1),
             SchoolAt(ranked, in), SchoolAt(ranked, in + 1), SchoolAt(ranked, in + 2),
             SchoolAt(ranked, in + 3), SchoolAt(ranked, in + 4), year);
}

void WriteFinalFour(Store& store, std::string_view table, int year,
                    const std::array<std::string, 4>& finalFour, const std::string& champion) {
  EnsureYearRow(store, table, year);
  store.Exec(fmt::format("UPDATE {} SET FinalFour1 = ?, FinalFour2 = ?, FinalFour3 = ?, "
                         "FinalFour4 = ?, Champ = ? WHERE Year = ?",
                         table),
             finalFour[0], finalFour[1], finalFour[2], finalFour[3], champion, year);
}

}  // namespace courtmere
