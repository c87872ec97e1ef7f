#include "history/invented_line.h"

#include "people/player.h"
#include "platform/numeric.h"
#include "platform/rng.h"

namespace courtmere {

namespace {

constexpr int kGames = 24;

enum class Build { kGuard, kWing, kBig };

Build BuildOf(int position) {
  if (position == kPG || position == kSG) return Build::kGuard;
  if (position == kSF) return Build::kWing;
  return Build::kBig;
}

// A share of the form Rnd * span + base for each build.
struct Share {
  double span, base;
};
struct Shares {
  Share guard, wing, big;
  const Share& Of(Build b) const {
    return b == Build::kGuard ? guard : b == Build::kWing ? wing : big;
  }
};

constexpr Shares kFreeThrows{{7, 17}, {7, 17}, {10, 17}};
constexpr Shares kThrees{{10, 15}, {15, 1}, {5, 0}};
constexpr Shares kShooting{{40, 20}, {30, 30}, {40, 30}};
constexpr Shares kOffRebounds{{7, 15}, {15, 20}, {15, 25}};
constexpr Shares kFouls{{30, 30}, {50, 40}, {50, 50}};
constexpr Shares kBlocks{{35, 0}, {40, 10}, {50, 20}};

double Draw(Rng& rng, const Share& s) {
  return rng.Rnd() * s.span + s.base;
}

}  // namespace

PoolLine InventedLine(Rng& rng, int position, const SchoolFigures& f) {
  const Build b = BuildOf(position);
  const int points = CInt(f.PPG * kGames);
  PoolLine l;
  l.G = kGames;
  l.FTM = CInt(points * Draw(rng, kFreeThrows.Of(b)) / 100);
  l.FTA = CInt(l.FTM / ((rng.Rnd() * 50 + 50) / 100));
  l.ThreeFGM = CInt(points * Draw(rng, kThrees.Of(b)) / 100 / 3);
  l.ThreeFGA = CInt(l.ThreeFGM / ((rng.Rnd() * 30 + 15) / 100));
  l.FGM = CInt((points - l.FTM - 3 * l.ThreeFGM) / 2.0);
  l.FGA = CInt(l.FGM / (Draw(rng, kShooting.Of(b)) / 100));
  l.OREB = CInt(f.RPG * kGames * Draw(rng, kOffRebounds.Of(b)) / 100);
  l.PF = CInt(Draw(rng, kFouls.Of(b)));
  l.BLK = CInt(Draw(rng, kBlocks.Of(b)));
  l.MIN = CInt((rng.Rnd() * 10 + 30) * kGames);
  l.REB = CInt(f.RPG * kGames);
  l.AST = CInt(f.APG * kGames);
  l.STL = CInt(f.SPG * kGames);
  l.TO = CInt(f.TOs * kGames);
  return l;
}

}  // namespace courtmere
