#include "screens/coach_career.h"

#include "store/store.h"

namespace courtmere {

namespace {

std::string OrNa(std::string text) {
  return text.empty() ? "NA" : text;
}

}  // namespace

CoachCareer ReadCoachCareer(Store& store) {
  CoachCareer c;
  Rows r = store.Query(
      "SELECT Name, Team, Seasons, Wins, Losses, ConfChamps, NCTApps, NCTWins, NCTLosses, "
      "NCTFinalFour, NCTChamps, ACTApps, ACTWins, ACTLosses, ACTFinalFour, ACTChamps, "
      "PrestigeChange FROM HeadCoach ORDER BY Id LIMIT 1");
  if (r.Next()) {
    c = {r.Text(0), r.Text(1), r.Int(2),  r.Int(3),  r.Int(4),     r.Int(5),
         r.Int(6),  r.Int(7),  r.Int(8),  r.Int(9),  r.Int(10),    r.Int(11),
         r.Int(12), r.Int(13), r.Int(14), r.Int(15), r.Double(16), {}};
  }
  for (Rows h = store.Query(
           "SELECT Season, Year, Team, Wins, Losses, ConfWins, ConfLosses, ConfChamps, ACTRecord, "
           "NCTRecord, Summary FROM CoachHistory ORDER BY Year ASC, Season ASC");
       h.Next();) {
    // A season in progress has no results yet: its figures stay empty.
    const bool played = !h.IsNull(7) && !h.Text(7).empty();
    auto figure = [&](int col) { return played ? h.Text(col) : std::string(); };
    c.history.push_back({h.Text(0), h.Text(1), h.Text(2), figure(3), figure(4), figure(5),
                         figure(6), h.Text(7), played ? OrNa(h.Text(8)) : "",
                         played ? OrNa(h.Text(9)) : "", h.Text(10)});
  }
  return c;
}

}  // namespace courtmere
