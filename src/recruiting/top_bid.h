// The head scout's estimate of the highest rival total on each of the
// user's recruits, written at the end of weeks 6 to 12 once every team has
// bid. A good spy errs by little; the estimate is usually high, never
// negative, capped by a weekly limit, and does not fall far from the last.
#pragma once

namespace courtmere {

class Rng;
struct Session;

// The spread of the estimate for the scout's Espionage.
int EspionageSpread(int espionage);

// The estimate E for a recruit whose highest total is `most`, capped for
// `week`, held near `previous` (the row's present TopBid).
int EstimateTopBid(Rng& rng, int most, int spread, int week, int previous);

// Writes TopBid on each of the user's rows for the week ending now.
void UpdateTopBids(Session& session);

}  // namespace courtmere
