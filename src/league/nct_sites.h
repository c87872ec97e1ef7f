// The NCT's sites, drawn from Cities: each region takes two first-weekend
// sites (Second = 1 and 2) and a regional site (Regional = 1) from its own
// cities, and one city that can hold it (PotFinal = 1) hosts the Final Four
// (Final = 1). A city once taken is out of every later draw, so no site
// hosts two regions, nor two weekends.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace courtmere {

class Store;
struct Session;

struct RegionSites {
  std::string first;     // the top half's first weekend (Second = 1)
  std::string second;    // the bottom half's first weekend (Second = 2)
  std::string regional;  // Regional = 1
};

struct NctSites {
  std::array<RegionSites, 4> regions;  // in the order of kRegions
  std::string final;
};

// Clears last year's marks, then draws the sites: the regions in the order
// Midwest, South, East, West, then the Final Four. An empty text stands for a
// site that could not be drawn (a region without free cities).
NctSites PickSites(Session& session);

// The sites as Cities marks them now.
NctSites ReadSites(Store& store);

}  // namespace courtmere
