#include "league/prestige_bands.h"

#include <array>

namespace courtmere {

namespace {

struct Band {
  double above;
  PrestigeBand band;
};

constexpr std::array<Band, 6> kBands = {{
    {74, {"Elite", "We want Championships!", 1}},
    {64, {"High", "Vie for NCT Championship", 2}},
    {59, {"Above Average", "Vie for Conf. Championship", 3}},
    {49, {"Average", "Make the NCT", 4}},
    {39, {"Below Average", "Keep the games close", 5}},
    {29, {"Low", "Win a few games", 6}},
}};

constexpr PrestigeBand kVeryLow = {"Very Low", "Avoid embarrassment", 7};

}  // namespace

const PrestigeBand& BandOf(double prestige) {
  for (const Band& b : kBands) {
    if (prestige > b.above) return b.band;
  }
  return kVeryLow;
}

}  // namespace courtmere
