#include "league/nct_sites.h"

#include <vector>

#include "league/bracket_slots.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct City {
  int id = 0;
  std::string name;
};

std::vector<City> FreeCities(Store& store, std::string_view sql, std::string_view region = {}) {
  std::vector<City> cities;
  Rows rows = region.empty() ? store.Query(sql) : store.Query(sql, region);
  while (rows.Next()) cities.push_back({rows.Int(0), rows.Text(1)});
  return cities;
}

// Moves `steps` rows on from the first free city, wrapping at the end.
const City* Draw(const std::vector<City>& cities, int steps) {
  if (cities.empty()) return nullptr;
  return &cities[static_cast<size_t>(steps) % cities.size()];
}

std::string DrawRegionSite(Session& session, std::string_view region, int j) {
  Store& store = session.Db();
  const std::vector<City> cities =
      FreeCities(store,
                 "SELECT Id, City FROM Cities WHERE Region = ? AND Second = 0 AND Regional = 0 "
                 "ORDER BY Id",
                 region);
  const City* city = Draw(cities, session.rng.IntRnd(15, 1));
  if (city == nullptr) return {};
  if (j < 3) {
    store.Exec("UPDATE Cities SET Second = ? WHERE Id = ?", j, city->id);
  } else {
    store.Exec("UPDATE Cities SET Regional = 1 WHERE Id = ?", city->id);
  }
  return city->name;
}

std::string DrawFinalSite(Session& session) {
  Store& store = session.Db();
  const std::vector<City> cities = FreeCities(
      store,
      "SELECT Id, City FROM Cities WHERE Second = 0 AND Regional = 0 AND PotFinal = 1 ORDER BY Id");
  const City* city = Draw(cities, session.rng.IntRnd(48, 1));
  if (city == nullptr) return {};
  store.Exec("UPDATE Cities SET Final = 1 WHERE Id = ?", city->id);
  return city->name;
}

}  // namespace

NctSites PickSites(Session& session) {
  // Design decision: the marks are cleared here as well as in the offseason,
  // so a store whose offseason never ran still draws from every city.
  session.Db().Exec("UPDATE Cities SET Second = 0, Regional = 0, Final = 0 WHERE Id > 0");
  session.rng.Reseed();
  NctSites sites;
  for (std::string_view region : kRegionsBySite) {
    RegionSites& s = sites.regions[static_cast<size_t>(RegionIndex(region))];
    s.first = DrawRegionSite(session, region, 1);
    s.second = DrawRegionSite(session, region, 2);
    s.regional = DrawRegionSite(session, region, 3);
  }
  sites.final = DrawFinalSite(session);
  return sites;
}

NctSites ReadSites(Store& store) {
  NctSites sites;
  for (Rows rows = store.Query("SELECT City, Region, Second, Regional, Final FROM Cities "
                               "WHERE Second > 0 OR Regional > 0 OR Final > 0 ORDER BY Id");
       rows.Next();) {
    const std::string city = rows.Text(0);
    if (rows.Int(4) > 0) sites.final = city;
    const int region = RegionIndex(rows.Text(1));
    if (region < 0) continue;
    RegionSites& s = sites.regions[static_cast<size_t>(region)];
    if (rows.Int(2) == 1) s.first = city;
    if (rows.Int(2) == 2) s.second = city;
    if (rows.Int(3) > 0) s.regional = city;
  }
  return sites;
}

}  // namespace courtmere
