#include "league/standings.h"

#include <fmt/format.h>

#include "league/head_coach.h"
#include "platform/numeric.h"
#include "store/store.h"

namespace courtmere {

namespace {

constexpr const char* kSelect =
    "SELECT TeamStats.SchoolName, Team.Conference, Team.Division, ConfWins, ConfLosses, "
    "TotalWins, TotalLosses, HomeWins, HomeLosses, AwayWins, AwayLosses, WinPercent "
    "FROM TeamStats JOIN Team ON Team.SchoolName = TeamStats.SchoolName ";

// Design decision: teams level on conference and overall wins stand by fewer
// conference losses, then fewer overall losses, then by name.
constexpr const char* kConferenceOrder =
    " ORDER BY ConfWins DESC, TotalWins DESC, ConfLosses ASC, TotalLosses ASC, "
    "TeamStats.SchoolName ASC";

template <class... Args>
std::vector<StandingsRow> ReadRows(Store& store, const std::string& user, const std::string& sql,
                                   const Args&... args) {
  std::vector<StandingsRow> out;
  for (Rows rows = store.Query(sql, args...); rows.Next();) {
    StandingsRow r;
    r.SchoolName = rows.Text(0);
    r.Conference = rows.Text(1);
    r.Division = rows.Text(2);
    r.ConfWins = rows.Int(3);
    r.ConfLosses = rows.Int(4);
    r.TotalWins = rows.Int(5);
    r.TotalLosses = rows.Int(6);
    r.HomeWins = rows.Int(7);
    r.HomeLosses = rows.Int(8);
    r.AwayWins = rows.Int(9);
    r.AwayLosses = rows.Int(10);
    r.WinPercent = rows.Double(11);
    r.User = r.SchoolName == user;
    out.push_back(std::move(r));
  }
  return out;
}

}  // namespace

std::vector<std::string> StandingsConferences(Store& store) {
  std::vector<std::string> names;
  for (Rows rows = store.Query("SELECT Conference FROM League ORDER BY Conference ASC");
       rows.Next();) {
    names.push_back(rows.Text(0));
  }
  return names;
}

Standings ConferenceStandings(Store& store, const std::string& conference) {
  Standings s{conference + " Standings", {}};
  const std::string user = HumanSchool(store);
  std::vector<StandingsRow> all =
      ReadRows(store, user, std::string(kSelect) + "WHERE Team.Conference = ?" + kConferenceOrder,
               conference);
  if (all.empty() || all.front().Division == "None") {
    s.Tables.push_back({"", std::move(all)});
    return s;
  }
  std::vector<std::string> divisions;
  for (Rows rows = store.Query(
           "SELECT DISTINCT Division FROM Team WHERE Conference = ? ORDER BY Division", conference);
       rows.Next() && divisions.size() < 3;) {
    divisions.push_back(rows.Text(0));
  }
  for (const std::string& division : divisions) {
    s.Tables.push_back({division, ReadRows(store, user,
                                           std::string(kSelect) +
                                               "WHERE Team.Conference = ? AND Team.Division = ?" +
                                               kConferenceOrder,
                                           conference, division)});
  }
  return s;
}

Standings NationalStandings(Store& store) {
  // Design decision: the nation is one table ordered by win fraction, then
  // wins, then fewer losses, then name.
  return {"National Standings",
          {{"", ReadRows(store, HumanSchool(store),
                         std::string(kSelect) +
                             "ORDER BY WinPercent DESC, TotalWins DESC, TotalLosses ASC, "
                             "TeamStats.SchoolName ASC")}}};
}

std::string WinPctText(double winPercent) {
  return fmt::format("{:.3f}", Round(100 * winPercent, 3));
}

}  // namespace courtmere
