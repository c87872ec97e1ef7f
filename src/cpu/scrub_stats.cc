// The season line of background players, whose games among themselves are
// never played: an estimate from the ratings, redrawn at set points of the
// season.
#include <vector>

#include "cpu/computer_roster.h"
#include "people/player.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct ScrubRatings {
  int position, threePoint, jumpshot, inScoring, passing, handling, offAware;
  int defRebounding, offRebounding, steal;
};

int Coin(Rng& rng) {
  return Int(rng.Rnd() * 100 + 1);
}

double Points(Rng& rng, const ScrubRatings& r) {
  double b;
  if (r.position < kSF) {
    b = (r.threePoint + r.jumpshot) / 2.0;
  } else if (r.position == kSF) {
    b = (0.5 * r.threePoint + r.jumpshot + 0.5 * r.inScoring) / 2;
  } else {
    b = (0.5 * r.jumpshot + r.inScoring) / 1.5;
  }
  const double v = Coin(rng) > 50 ? b + Int(rng.Rnd() * 10 + 1) - 55 : b - 55;
  return v <= 10 ? rng.Rnd() * 4 + 5 : v;
}

double Assists(Rng& rng, const ScrubRatings& r) {
  const double b = (r.passing + r.handling) / 2.0;
  const double v = Coin(rng) > 50 ? b + Int(rng.Rnd() * 10 + 5) - 50 : b - 50;
  if (v <= 5) return rng.Rnd() * 4 + 1;
  return v / (r.position == kPG ? 2.5 : 4.5);
}

double Rebounds(Rng& rng, const ScrubRatings& r) {
  const double b = (r.defRebounding + r.offRebounding) / 5.0;
  const double v =
      Coin(rng) > 50 ? b + Int(rng.Rnd() * 5 + 5) - 50 : b - Int(rng.Rnd() * 5 + 5) - 50;
  return v <= 5 ? rng.Rnd() * 2 + 1 : v / 2.5;
}

double Turnovers(Rng& rng, const ScrubRatings& r) {
  const double t = (r.passing + r.handling + r.offAware) / 3.0;
  const double v =
      Coin(rng) > 50 ? 100 - t + Int(rng.Rnd() * 5 + 1) : 100 - t - Int(rng.Rnd() * 5 + 5);
  return v / 12;
}

double Steals(Rng& rng, const ScrubRatings& r) {
  const double v = Coin(rng) > 50 ? r.steal + Int(rng.Rnd() * 10 + 5) - 50
                                  : r.steal - Int(rng.Rnd() * 10 + 1) - 50;
  return v <= 5 ? rng.Rnd() * 1.5 + 0.3 : v / 10.5;
}

double ThreeFraction(Rng& rng, int threePoint) {
  if (threePoint > 75) return (rng.Rnd() * 20 + 25) / 100;
  if (threePoint > 65) return (rng.Rnd() * 20 + 20) / 100;
  if (threePoint > 55) return (rng.Rnd() * 20 + 15) / 100;
  if (threePoint > 45) return (rng.Rnd() * 15 + 15) / 100;
  return (rng.Rnd() * 20 + 10) / 100;
}

double FieldGoalFraction(Rng& rng, double points) {
  if (points > 20) return (rng.Rnd() * 20 + 45) / 100;
  if (points > 17) return (rng.Rnd() * 20 + 40) / 100;
  if (points > 14) return (rng.Rnd() * 20 + 35) / 100;
  if (points > 10) return (rng.Rnd() * 20 + 30) / 100;
  return (rng.Rnd() * 30 + 25) / 100;
}

void Estimate(Rng& rng, const ScrubRatings& r, int games, PlayerSeasonLine& line) {
  line.PlayerPosition = r.position;
  line.PPG = Points(rng, r);
  line.APG = Assists(rng, r);
  line.RPG = Rebounds(rng, r);
  line.TOPG = Turnovers(rng, r);
  line.SPG = Steals(rng, r);
  line.ThreePercent = ThreeFraction(rng, r.threePoint);
  line.FGPercent = FieldGoalFraction(rng, line.PPG);
  line.BPG = r.position == kC ? rng.Rnd() * 2 + 1 : rng.Rnd() * 1.5;
  line.MPG = rng.Rnd() * 15 + 15;
  line.Games = games;
}

bool ReadRatings(Store& store, int id, ScrubRatings& r) {
  Rows rows = store.Query(
      "SELECT PlayerPosition, ThreePoint, Jumpshot, InScoring, Passing, Handling, OffAware, "
      "DefRebounding, OffRebounding, Steal FROM ScrubPlayer WHERE Id = ?",
      id);
  if (!rows.Next()) return false;
  r = {rows.Int(0), rows.Int(1), rows.Int(2), rows.Int(3), rows.Int(4),
       rows.Int(5), rows.Int(6), rows.Int(7), rows.Int(8), rows.Int(9)};
  return true;
}

// The team's entry: the one with its name, else the first free one, which
// takes the team's players in id order. 0 when all entries are taken.
int EntryOf(Store& store, PlayerStatsStore& stats, const std::string& school) {
  int free = 0;
  for (int i = 1; i <= PlayerStatsStore::kMaxTeams; ++i) {
    const std::string& name = stats.Team(i).SchoolName;
    if (name == school) return i;
    if (name.empty() && free == 0) free = i;
  }
  if (free == 0) return 0;
  TeamSeasonLines& entry = stats.Team(free);
  entry = TeamSeasonLines{};
  entry.SchoolName = school;
  int slot = 1;
  for (Rows rows = store.Query("SELECT Id FROM ScrubPlayer WHERE Team = ? ORDER BY Id ASC", school);
       rows.Next() && slot <= TeamSeasonLines::kSlots;) {
    entry.Players[slot++].Id = rows.Int(0);
  }
  return free;
}

}  // namespace

void UpdateScrubStats(Session& session, PlayerStatsStore& stats, int games) {
  Store& store = session.Db();
  std::vector<std::string> schools;
  for (Rows rows = store.Query("SELECT SchoolName FROM ScrubTeam ORDER BY rowid"); rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  for (std::size_t i = 0; i < schools.size(); ++i) {
    const int entry = EntryOf(store, stats, schools[i]);
    if (entry == 0) break;
    for (int slot = 1; slot <= TeamSeasonLines::kSlots; ++slot) {
      PlayerSeasonLine& line = stats.Team(entry).Players[slot];
      ScrubRatings ratings;
      if (line.Id == 0 || !ReadRatings(store, line.Id, ratings)) continue;
      Estimate(session.rng, ratings, games, line);
    }
    session.ui.SetProgress(static_cast<int>((i + 1) * 100 / schools.size()));
  }
}

}  // namespace courtmere
