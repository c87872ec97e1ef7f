#include "screens/school_history.h"

#include <fmt/format.h>

#include "store/store.h"

namespace courtmere {

SchoolHistory ReadSchoolHistory(Store& store, const std::string& school) {
  SchoolHistory h;
  Rows t = store.Query(
      "SELECT OverallWins, OverallGames, ConfChamps, NCTApps, NCTWins, NCTLosses, "
      "NCTFinalFourApps, NCTChamps, ACTApps, ACTWins, ACTLosses, ACTFinalFourApps, ACTChamps "
      "FROM Team WHERE SchoolName = ?",
      school);
  if (!t.Next()) return h;
  h.school = school;
  h.totals = {t.Int(0), t.Int(1), t.Int(2), t.Int(3),  t.Int(4),  t.Int(5), t.Int(6),
              t.Int(7), t.Int(8), t.Int(9), t.Int(10), t.Int(11), t.Int(12)};
  for (Rows r = store.Query(
           "SELECT Year, Wins, Losses, ConfWins, ConfLosses, PollRank, ConfChamp, NCTRecord, "
           "ACTRecord, Summary FROM TeamHistory WHERE SchoolName = ? ORDER BY Year ASC",
           school);
       r.Next();) {
    h.seasons.push_back({r.Int(0), r.Int(1), r.Int(2), r.Int(3), r.Int(4), r.Int(5), r.Int(6) != 0,
                         r.Text(7), r.Text(8), r.Text(9)});
  }
  for (Rows r = store.Query(
           "SELECT Name, Position, NBADraft, YearLeft, PPG, RPG, APG FROM Alumni WHERE Team = ? "
           "ORDER BY YearLeft DESC, Id ASC",
           school);
       r.Next();) {
    h.alumni.push_back(
        {r.Text(0), r.Text(1), r.Text(2), r.Int(3), r.Double(4), r.Double(5), r.Double(6)});
  }
  return h;
}

std::string AllTimeRecord(const SchoolTotals& t) {
  if (t.games == 0) return "0-0";
  const std::string fraction = fmt::format("{:.3f}", static_cast<double>(t.wins) / t.games);
  return fmt::format("{}-{} ({})", t.wins, t.games - t.wins,
                     fraction.starts_with("0") ? fraction.substr(1) : fraction);
}

}  // namespace courtmere
