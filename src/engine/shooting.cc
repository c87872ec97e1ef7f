#include "engine/shooting.h"

#include <algorithm>

#include "engine/add_stat.h"
#include "engine/fatigue.h"
#include "engine/live_screen.h"
#include "engine/play_log.h"
#include "engine/play_text.h"
#include "engine/roll.h"
#include "engine/substitution.h"
#include "platform/numeric.h"

namespace courtmere {

namespace {

constexpr int kMakeLine = 551;
constexpr int kCountsDespiteFoul = 700;
constexpr int kBlocked = 5;

int HurryFromClocks(int clock, int shotClock) {
  const int m = std::min(clock, shotClock);
  if (m < 6) return 20;
  if (m <= 8) return 10;
  if (m <= 10) return 5;
  return 0;
}

// The shot score of the decision, by distance band.
double DecisionScore(const Game& game, const GamePlayer& o, const GamePlayer& d, int dist, int r,
                     int hurry, int outsideBonus, int insideBonus) {
  const double n = game.Footwork;
  const double open = game.Openness / 4.0;
  const double noise = game.DefNoise + 10;
  if (dist >= 20) {
    return o.Jumpshot * 0.2 + o.ThreePoint * 0.9 - d.PerrDefense * 1.3 - noise / 2 + r * 1.4 +
           hurry + open + outsideBonus;
  }
  if (dist >= 16) {
    return o.ThreePoint * 0.1 + o.Jumpshot * 0.9 - d.PerrDefense * 1.6 - noise / 1.5 + r * 1.2 +
           n * 0.8 + hurry + open;
  }
  if (dist >= 10) {
    return o.ThreePoint * 0.1 + o.Jumpshot * 0.9 - d.PerrDefense * 1.3 - noise / 1.25 + r * 1.2 +
           n * 0.8 + hurry + open;
  }
  if (dist >= 8) {
    return o.Jumpshot * 0.9 + o.InScoring * 0.7 - d.PerrDefense * 1.3 - noise * 2 + r * 1.2 + n +
           hurry + open + insideBonus;
  }
  if (dist >= 5) {
    return o.Jumpshot * 0.2 + o.InScoring * 1.8 + o.Strength * 0.5 - d.PostDefense * 1.3 -
           d.Strength * 0.25 - noise * 2 + r * 1.7 + n * 1.5 + hurry + open + insideBonus;
  }
  if (dist >= 1) {
    return o.InScoring * 2.2 + o.Strength - d.PostDefense * 1.3 - d.Strength * 0.2 - noise * 2 +
           r * 1.7 + n * 2 + hurry + open + insideBonus;
  }
  return 0;
}

// The value of the shot taken, by distance band.
double ShotQuality(const Game& game, const GamePlayer& o, const GamePlayer& d, int dist, int r) {
  const double n = game.Footwork;
  const double open = game.Openness / 4.0;
  const double m = game.DefNoise + 11;
  if (dist >= 20) {
    return o.ThreePoint * 0.65 - d.PerrDefense * 1.7 - m / 2 + r * 1.08 + open;
  }
  if (dist >= 16) {
    return o.ThreePoint * 0.1 + o.Jumpshot * 0.8 - d.PerrDefense * 2.5 - m / 1.5 + r * 1.2 +
           n * 0.8 + open;
  }
  if (dist >= 10) {
    return o.ThreePoint * 0.1 + o.Jumpshot * 0.8 - d.PerrDefense * 2.5 - m + r * 1.2 + n * 0.8 +
           open;
  }
  if (dist >= 8) {
    return o.Jumpshot * 0.9 + o.InScoring * 0.5 - d.PerrDefense * 2.5 - m * 1.45 + r * 1.2 + n +
           open;
  }
  if (dist >= 5) {
    return o.InScoring * 1.52 + o.Jumpshot * 0.3 + o.Strength * 0.55 - d.PostDefense * 1.5 -
           d.Strength * 0.25 - m * 1.5 + r * 1.1 + n * 1.2 + open;
  }
  if (dist >= 1) {
    return o.InScoring * 1.7 + o.Strength * 0.75 - d.PostDefense * 1.6 - d.Strength * 0.5 - m * 2 +
           r + n * 2 + open;
  }
  return 0;
}

int& ShooterPoints(Game& game) {
  GameSide& offense = game.Offense();
  return game.LineOf(offense, offense.Court[game.BallPos]).Points;
}

// "Shot Made" with its two "Allow Point"; a three adds "Three Made" and one
// more "Allow Point". The score rises with the points.
void BookMadeShot(Game& game, bool three) {
  AddStat(game, Stat::ShotMade, SideWordRole::Offense, game.BallPos);
  AddStat(game, Stat::AllowPoint, SideWordRole::Defense, game.BallPos);
  AddStat(game, Stat::AllowPoint, SideWordRole::Defense, game.BallPos);
  if (three) {
    game.Offense().Score += 3;
    AddStat(game, Stat::ThreeMade, SideWordRole::Offense, game.BallPos);
    AddStat(game, Stat::AllowPoint, SideWordRole::Defense, game.BallPos);
  } else {
    game.Offense().Score += 2;
  }
}

void BookAttempt(Game& game, int dist) {
  AddStat(game, Stat::ShotAttempt, SideWordRole::Offense, game.BallPos);
  if (dist > 19) AddStat(game, Stat::ThreeAttempt, SideWordRole::Offense, game.BallPos);
}

std::string WithPoints(std::string text, int points) {
  text += std::to_string(points);
  text += ')';
  return text;
}

void ResolveFouledShot(Game& game, int shotValue) {
  const int dist = game.Distance;
  const int fouler = game.Fouler;
  std::string text = PlayText(game, dist, PlayVariant::ShootFoul);
  PostPlayWith(game, PlayKind::Offense, [&] { return text + game.Defense().CourtName(fouler); });
  AddStat(game, Stat::Foul, SideWordRole::Defense, fouler);

  int last = 0;
  const bool andOne = shotValue == kCountsDespiteFoul && game.Blocker == 0;
  if (!andOne) {
    PostPlay(game, "is shooting Foul Shots", PlayKind::Offense);
    game.AtFreeThrowLine = 1;
    CheckSubs(game);
    FreeThrow(game);
    last = FreeThrow(game);
    game.AtFreeThrowLine = 0;
  } else {
    BookAttempt(game, dist);
    BookMadeShot(game, dist >= 20);
    text = PlayText(game, dist, PlayVariant::HitsFoul);
    PostPlayWith(game, PlayKind::Offense, [&] { return WithPoints(text, ShooterPoints(game)); });
    CheckSubs(game);
    last = FreeThrow(game);
  }

  if (last == 1) {
    game.PossState = 2;
    game.Clock -= game.rng->IntRnd(2, 2);
  } else {
    game.Distance = Rebound(game, game.Distance, false);
  }
  game.Fouler = 0;
}

void ResolveCleanShot(Game& game, int shotValue) {
  const int dist = game.Distance;
  BookAttempt(game, dist);
  if (game.Blocker >= 1) {
    const std::string text = PlayText(game, dist, PlayVariant::Block);
    PostPlayWith(game, PlayKind::Offense,
                 [&] { return text + game.Defense().CourtName(game.Blocker); });
    AddStat(game, Stat::ShotBlock, SideWordRole::Defense, game.Blocker);
    game.Distance = Rebound(game, game.Distance, true);
    return;
  }
  if (shotValue < kMakeLine) {
    const std::string text = PlayText(game, dist, PlayVariant::Miss);
    PostPlay(game, text, PlayKind::Offense);
    game.Distance = Rebound(game, game.Distance, false);
    return;
  }

  BookMadeShot(game, dist >= 20);
  std::string text = PlayText(game, dist, PlayVariant::Hits);
  if (game.WantsText()) text = WithPoints(std::move(text), ShooterPoints(game));
  if (game.Footwork == 0 && game.Fouler == 0 && game.Passer != 0 && game.Rebounded == 0) {
    const int a = game.rng->Roll(10);
    const int b = game.rng->Roll(10);
    if ((game.Passer == 1 && a > 2) || b > 4) {
      if (game.WantsText()) text += " (" + game.Offense().CourtName(game.Passer) + ")";
      AddStat(game, Stat::Assist, SideWordRole::Offense, game.Passer);
    }
  }
  PostPlay(game, text, PlayKind::Offense);
  game.PossState = 2;
  game.Clock -= game.rng->IntRnd(2, 2);
}

// The shot decision of a man inside his range with time to spare: his shot
// score against the bands, with the roll r.
bool WantsTheShot(Game& game, const GamePlayer& o, const GamePlayer& d, int r) {
  const GameSide& offense = game.Offense();
  const OffenseKind kind = offense.tactics.OffenseRule();
  const int outsideBonus = kind == OffenseKind::Outside ? 40 : 0;
  const int insideBonus = kind == OffenseKind::Inside ? 20 : 0;
  const int deficit = game.Defense().Score - offense.Score;
  int hurry = ((deficit >= 4 && deficit <= 9 && game.Clock < 60) || offense.Pace == 1) ? 30 : 0;
  hurry += HurryFromClocks(game.Clock, game.ShotClock);

  const int need = offense.ShotNeed;
  if (need == 3 && game.ShotClock < 11 && o.Range > 19) game.Distance = 20;
  const int dist = game.Distance;
  double s = DecisionScore(game, o, d, dist, r, hurry, outsideBonus, insideBonus);
  if (need == 2 || need == 3) {
    const bool fits = (need == 3 && dist >= 20) || (need == 2 && dist < 20);
    s += fits ? 40 : -50;
  }
  const int a = o.OffAware + r;
  if (s > 330) return a > 65;
  if (s > 285) return a <= 75;
  if (s > 280) return a <= 55;
  return false;
}

}  // namespace

int ShootDecision(Game& game, const GamePlayer& o, const GamePlayer& d) {
  Rng& rng = *game.rng;
  game.DefNoise = rng.IntRnd(10, 1);
  const int r = rng.IntRnd(400, 1);
  if (game.Offense().Pace == 2 && game.ShotClock > 15) return 0;

  // Beyond his range he shoots only as the shot clock or the game runs out;
  // with time left on both clocks he does not shoot.
  bool shoot = false;
  if (game.Distance > o.Range) {
    if (game.ShotClock < 5) {
      shoot = true;
    } else if (game.Clock > 4) {
      return 0;
    }
  }
  if (!shoot && (game.ShotClock < 5 || game.Clock < 5)) shoot = true;
  if (!shoot && !WantsTheShot(game, o, d, r)) return 0;
  return TakeShot(game, o, d, r);
}

int TakeShot(Game& game, const GamePlayer& o, const GamePlayer& d, int r) {
  Rng& rng = *game.rng;
  const Side defSide = game.DefenseSide();
  const int dist = game.Distance;
  r = CInt(r + rng.IntRnd(400, 1));
  double v = ShotQuality(game, o, d, dist, r);

  const bool oTired = IsTired(game, game.LineOf(game.Offense(), o).Energy);
  const bool dTired = IsTired(game, game.LineOf(game.Defense(), d).Energy);
  const int edge = game.Possession == Side::Home ? game.CourtEdge : -game.CourtEdge;
  const int dRoll = rng.Roll(10);
  const int oRoll = rng.Roll(15);
  v += o.Reach - d.Reach + edge * 15 + dRoll * (dTired ? 1 : 0) - oRoll * (oTired ? 1 : 0);

  const int f = rng.IntRnd(30, 1);
  if (dist < 15 && f >= 28) {
    if (rng.IntRnd(20, 5) + d.DefAware < 120) {
      game.Fouler = PickFouler(game, dist, defSide);
      if (rng.IntRnd(400, 1) + o.Strength + v > 1100) v = kCountsDespiteFoul;
    }
  } else if (dist >= 15 && dist <= 20 && f == 30) {
    if (rng.IntRnd(20, 1) + d.DefAware < 120) {
      game.Fouler = PickFouler(game, dist, defSide);
      if (rng.IntRnd(50, 1) > 48) v = kCountsDespiteFoul;
    }
  }

  const int b = PickBlocker(game);
  const int blockRoll = rng.IntRnd(20, 1);
  const double blockValue = game.Defense().Court[b].ShotBlock * blockRoll / 100.0;
  const int seconds = rng.IntRnd(2, 1);
  if (dist < 12 && blockValue > 15.3) {
    game.Blocker = b;
    v = kBlocked;
  } else if (blockRoll == 20) {
    if (rng.IntRnd(10, 1) + d.ShotBlock > 70) {
      // The credit goes to the floor slot of the defender's natural position.
      // Design decision: a position outside 1 to 5 counts as the centre's slot.
      const int position = d.PlayerPosition;
      game.Blocker = (position >= 1 && position <= 5) ? position : 5;
      v = kBlocked;
    }
  } else if (v > 3) {
    game.ShotClock = 35;
  } else {
    game.ShotClock -= seconds;
  }
  game.Clock -= seconds;
  const int value = Int(v);
  return value == 0 ? 1 : value;
}

void ResolveShot(Game& game, int shotValue) {
  if (game.Fouler >= 1) {
    ResolveFouledShot(game, shotValue);
  } else {
    ResolveCleanShot(game, shotValue);
  }
}

int FreeThrow(Game& game) {
  AddStat(game, Stat::FreeThrowAttempt, SideWordRole::Offense, game.BallPos);
  if (game.Live() && game.UserSubAsked == 1) game.screen->OpenSubstitutions(game);
  PostPlay(game, "Sub during Free Throws", PlayKind::Subs);
  int made = 0;
  const GamePlayer& shooter = game.Offense().Court[game.BallPos];
  if (game.rng->Roll(100) < shooter.FreeThrow) {
    AddStat(game, Stat::FreeThrowMade, SideWordRole::Offense, game.BallPos);
    AddStat(game, Stat::AllowPoint, SideWordRole::Defense, game.BallPos);
    game.Offense().Score += 1;
    PostPlayWith(game, PlayKind::Offense,
                 [&] { return WithPoints("hit the FreeThrow (", ShooterPoints(game)); });
    made = 1;
  } else {
    PostPlay(game, "missed the FreeThrow", PlayKind::Offense);
  }
  game.AtFreeThrowLine = 0;
  return made;
}

int PickFouler(Game& game, int distance, Side side) {
  GameSide& team = game.SideOf(side);
  Rng& rng = *game.rng;
  HighestRoll highest;
  for (int slot = 1; slot <= 5; ++slot) {
    const GamePlayer& man = team.Court[slot];
    int v = distance < 13 ? CInt(rng.Rnd() * 50 + 10 + man.ShotBlock - man.DefAware)
                          : CInt(rng.Rnd() * 50 + 1 + man.Steal - man.DefAware);
    const int fouls = game.LineOf(team, man).Fouls;
    if ((game.Half == 1 && fouls >= 3) || fouls >= 4) v -= 25;
    highest.Offer(slot, v);
  }
  return highest.slot;
}

int PickBlocker(Game& game) {
  HighestRoll highest;
  for (int slot = 1; slot <= 5; ++slot) {
    highest.Offer(slot, game.rng->Roll(120) + game.Defense().Court[slot].ShotBlock);
  }
  return highest.slot;
}

namespace {

int LandingDistance(Rng& rng, int d) {
  if (d > 15) return rng.IntRnd(10, 6);
  if (d >= 10) return rng.IntRnd(6, 4);
  if (d >= 6) return rng.IntRnd(5, 4);
  return rng.IntRnd(4, 1);
}

// The rebounding skill of a man, by landing distance and by whether his
// side has the ball.
double ReboundSkill(const GamePlayer& man, int landing, bool offense) {
  if (landing >= 10) {
    return offense ? man.Quickness * 0.9 + man.OffRebounding / 1.5
                   : man.DefRebounding / 1.35 + man.Quickness * 0.9;
  }
  if (landing >= 7) return offense ? man.OffRebounding / 1.5 : man.DefRebounding / 1.2;
  return offense ? man.OffRebounding : man.DefRebounding * 1.3;
}

// The fixed part of the roll for a man of `side` (everything but the random
// part): the crowd counts in the regular season, the court edge always.
double ReboundRollBase(const Game& game, int landing, Side side) {
  const double c = game.Crowd;
  const double e = game.CourtEdge;
  const bool homeBall = game.Possession == Side::Home;
  const bool early = game.CurrWeek <= (landing >= 7 ? 15 : 16);
  if (landing >= 10) {
    if (side == Side::Home) {
      if (early) return (homeBall ? c / 10 : c / 4) + e * 5;
      return e * 5 + (homeBall ? 5 : 15);
    }
    if (early) return homeBall ? 10 : 3;
    return homeBall ? 15 : 5;
  }
  if (side == Side::Home) {
    if (early) return (homeBall ? c / 9 : c / 2.5) + e * 10;
    return e * 10 + (homeBall ? 5 : 25);
  }
  if (early) return homeBall ? 20 : 1;
  return homeBall ? 25 : 5;
}

}  // namespace

int Rebound(Game& game, int distance, bool blocked) {
  Rng& rng = *game.rng;
  const int landing = LandingDistance(rng, distance);
  const double range = landing >= 10 ? 150 : 400;
  const double homeBase = ReboundRollBase(game, landing, Side::Home);
  const double awayBase = ReboundRollBase(game, landing, Side::Away);
  const bool homeBall = game.Possession == Side::Home;

  std::array<int, 6> home{};
  std::array<int, 6> away{};
  for (int slot = 1; slot <= 5; ++slot) {
    const GamePlayer& h = game.Home().Court[slot];
    const GamePlayer& a = game.Away().Court[slot];
    home[slot] = CInt(Int(homeBase + rng.Rnd() * range) + ReboundSkill(h, landing, homeBall));
    away[slot] = CInt(Int(awayBase + rng.Rnd() * range) + ReboundSkill(a, landing, !homeBall));
  }
  (homeBall ? home : away)[game.BallPos] -= 30;

  auto best = [](const std::array<int, 6>& values) {
    HighestRoll highest;
    for (int i = 1; i <= 5; ++i) highest.Offer(i, values[i]);
    return highest;
  };
  const HighestRoll homeBest = best(home);
  const HighestRoll awayBest = best(away);
  const Side winner = awayBest.value > homeBest.value ? Side::Away : Side::Home;
  game.BallPos = winner == Side::Away ? awayBest.slot : homeBest.slot;

  const int seconds = rng.IntRnd(2, 1);
  game.ShotClock -= seconds;
  game.Clock -= seconds;

  const bool defensive = winner != game.Possession;
  if (defensive) {
    game.PossState = 1;
    AddStat(game, Stat::DefRebound, SideWordRole::Defense, game.BallPos);
  } else {
    AddStat(game, Stat::OffRebound, SideWordRole::Offense, game.BallPos);
  }
  game.Rebounded = 1;
  if (blocked) {
    PostPlay(game, defensive ? "corralled the blocked shot" : "pounced on the loose ball",
             defensive ? PlayKind::Defense : PlayKind::Offense);
  } else {
    PostPlay(game, defensive ? "grabbed the defensive rebound" : "grabbed the offensive rebound",
             defensive ? PlayKind::Defense : PlayKind::Offense);
  }
  return landing;
}

}  // namespace courtmere
