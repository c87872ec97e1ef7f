#include "screens/school_record.h"

#include <fmt/format.h>

#include "store/store.h"

namespace courtmere {

std::string SchoolRecord(Store& store, const std::string& school) {
  Rows r = store.Query(
      "SELECT TotalWins, TotalLosses FROM TeamStats WHERE SchoolName = ?1 UNION ALL "
      "SELECT Wins, Losses FROM ScrubTeam WHERE SchoolName = ?1",
      school);
  if (!r.Next()) return "0-0";
  return fmt::format("{}-{}", r.Int(0), r.Int(1));
}

}  // namespace courtmere
