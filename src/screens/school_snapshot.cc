#include "screens/school_snapshot.h"

#include "league/prestige_bands.h"
#include "store/store.h"

namespace courtmere {

namespace {

SchoolSnapshot Snapshot(Store& store, const std::string& sql, const std::string& school) {
  SchoolSnapshot s;
  Rows rows = store.Query(sql, school);
  if (!rows.Next()) return s;
  s.Location = rows.Text(0);
  s.State = rows.Text(1);
  s.Population = FormatThousands(rows.Int64(2));
  s.ArenaCapacity = FormatThousands(rows.Int64(3));
  s.Colors = rows.Text(4);
  const PrestigeBand& band = BandOf(rows.Double(5));
  s.Prestige = band.Label;
  s.Expectations = band.Expectation;
  return s;
}

}  // namespace

SchoolSnapshot LowLeagueSnapshot(Store& store, const std::string& school) {
  return Snapshot(store,
                  "SELECT Location, State, Population, ArenaCapacity, Colors, Prestige "
                  "FROM LowLeagueSetup WHERE SchoolName = ?",
                  school);
}

SchoolSnapshot TeamSnapshot(Store& store, const std::string& school) {
  return Snapshot(store,
                  "SELECT Location, State, Population, ArenaCapacity, Colors, InitialPrestige "
                  "FROM Team WHERE SchoolName = ?",
                  school);
}

std::vector<std::pair<std::string, std::string>> TeamGrid(const SchoolSnapshot& s) {
  return {{"Location:", s.Location + ", " + s.State},
          {"Population:", s.Population},
          {"Arena Cap.:", s.ArenaCapacity},
          {"Colors:", s.Colors},
          {"Prestige:", s.Prestige},
          {"Expectations:", s.Expectations}};
}

}  // namespace courtmere
