#include "recruiting/top_bid.h"

#include <vector>

#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

// Up or down by `step`: up four times in five.
int Lean(Rng& rng, int value, int step) {
  return rng.IntRnd(5, 5) > 5 ? value + step : value - step;
}

}  // namespace

int EspionageSpread(int espionage) {
  struct Band {
    int above, spread;
  };
  constexpr Band kBands[] = {{90, 5}, {80, 10}, {70, 20}, {60, 30}, {50, 40}, {40, 50}};
  for (const Band& band : kBands) {
    if (espionage > band.above) return band.spread;
  }
  return 70;
}

int EstimateTopBid(Rng& rng, int most, int spread, int week, int previous) {
  int e = Lean(rng, most, spread);
  // The weekly limits of weeks 6 to 12; an estimate above one falls to just
  // under it (the base, 10 below, plus 1 to 10).
  constexpr int kLimits[] = {140, 160, 170, 180, 190, 200, 210};
  if (week >= 6 && week <= 12) {
    const int limit = kLimits[week - 6];
    if (e > limit) e = rng.IntRnd(10, 1) + limit - 10;
  }
  if (e < 0) e = rng.IntRnd(20, 1);
  if (e < previous) e = Lean(rng, previous, 10);
  return e;
}

void UpdateTopBids(Session& session) {
  Store& store = session.Db();
  const int espionage = static_cast<int>(
      store.ScalarInt("SELECT Espionage FROM Scout WHERE Team = ?", session.humanSchool)
          .value_or(0));
  const int spread = EspionageSpread(espionage);
  struct Row {
    int id, player, topBid;
  };
  std::vector<Row> rows;
  for (Rows r = store.Query(
           "SELECT Id, PlayerID, TopBid FROM RecruitDecision WHERE Team = ? ORDER BY Id",
           session.humanSchool);
       r.Next();) {
    rows.push_back({r.Int(0), r.Int(1), r.Int(2)});
  }
  for (const Row& row : rows) {
    const int most = static_cast<int>(
        store
            .ScalarInt("SELECT max(RecruitPoints) FROM RecruitDecision WHERE PlayerID = ?",
                       row.player)
            .value_or(0));
    const int e = EstimateTopBid(session.rng, most, spread, session.config.CurrWeek, row.topBid);
    store.Exec("UPDATE RecruitDecision SET TopBid = ? WHERE Id = ?", e, row.id);
  }
}

}  // namespace courtmere
