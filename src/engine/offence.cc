#include "engine/offence.h"

#include "engine/add_stat.h"
#include "engine/fatigue.h"
#include "engine/play_log.h"
#include "engine/roll.h"
#include "engine/shooting.h"
#include "platform/numeric.h"

namespace courtmere {

namespace {

// The seconds a dribble drive takes by the feet gained.
int DribbleSeconds(Rng& rng, int footwork) {
  if (footwork >= 9) return rng.IntRnd(3, 3);
  if (footwork >= 4) return rng.IntRnd(4, 2);
  if (footwork >= 1) return rng.IntRnd(3, 1);
  return 0;
}

void TakeSeconds(Game& game, int seconds) {
  game.Clock -= seconds;
  game.ShotClock -= seconds;
}

int PressBonus(PressKind press) {
  switch (press) {
    case PressKind::FullCourt:
      return 20;
    case PressKind::HalfCourt:
      return 10;
    default:
      return 0;
  }
}

bool ReachFoulBeat(PressKind press, int beat) {
  return (beat < 6 && press == PressKind::FullCourt) ||
         (beat < 5 && press == PressKind::HalfCourt) || (beat < 4 && press == PressKind::None);
}

bool StealTryBeat(PressKind press, int beat) {
  return (beat < 8 && press == PressKind::FullCourt) ||
         (beat < 7 && press == PressKind::HalfCourt) || (beat < 6 && press == PressKind::None);
}

// The bands of a pass's score, from above 262 down through 225, 150, 75 and
// -50: the receiver takes the ball at IntRnd(width, from) feet. In the last,
// the danger band (-50 and below), that draw is the defender's steal roll.
struct PassBand {
  int width;
  int from;
};
constexpr PassBand kPassBands[] = {{6, 5}, {15, 6}, {13, 9}, {5, 17}, {2, 20}, {35, 20}};
constexpr int kDangerBand = 5;

// The receiving slots of a pass by the feet at which it is caught, read off
// by the roll p: above `over[0]` the first slot, above `over[1]` the second,
// and so on; at or below `over[3]` the last.
struct ReceiverBand {
  int over[4];
  int slot[5];
};
constexpr ReceiverBand kReceiverBands[] = {
    {{65, 30, 10, 5}, {1, 2, 3, 4, 5}},   // above 20 feet
    {{65, 40, 15, 5}, {2, 3, 1, 4, 5}},   // 16 to 20
    {{75, 50, 35, 15}, {3, 2, 1, 4, 5}},  // 11 to 15
    {{75, 50, 30, 10}, {4, 3, 5, 2, 1}},  // 7 to 10
    {{65, 35, 15, 5}, {5, 4, 3, 2, 1}},   // 2 to 6
    {{70, 40, 20, 5}, {5, 4, 3, 2, 1}},   // closer
};

}  // namespace

void InboundBall(Game& game) {
  Rng& rng = *game.rng;
  const int p = rng.Roll(100);
  const int receiver = p >= 81 ? 2 : (p >= 76 ? 3 : 1);
  const int q = rng.Roll(100);
  const int inbounder = q <= 40 ? 4 : 5;
  if (game.Clock > 120) {
    switch (game.Offense().tactics.TempoRule()) {
      case TempoKind::SlowDown:
        game.Clock -= 2;
        break;
      case TempoKind::Normal:
        game.Clock -= rng.IntRnd(2, 1);
        break;
      default:
        game.Clock -= 1;
        break;
    }
  }
  game.BallPos = receiver;
  PostPlayWith(game, PlayKind::Offense, [&] {
    return "gets the inbounds pass from " + game.Offense().CourtName(inbounder);
  });
}

void BringBallUp(Game& game) {
  Rng& rng = *game.rng;
  const int prev = game.BallPos;
  const int n = rng.IntRnd(20, 2);
  double def = 0;
  double off = 0;
  for (int slot = 1; slot <= 5; ++slot) {
    const GamePlayer& d = game.Defense().Court[slot];
    const GamePlayer& o = game.Offense().Court[slot];
    def += (d.Quickness + d.PerrDefense + d.DefAware) / 2.0;
    off += (o.Handling + o.Passing + o.OffAware) / 2.0;
  }
  const int r = rng.IntRnd(200, 20);
  const double raw = off - def - n + r;
  double v = r > 150 ? 150 : (r >= 22 ? raw : -40);
  if (r < 23 && raw < -130) v = -136;

  int seconds;
  if (v > 155) {
    game.TransitionEdge = rng.IntRnd(15, 5);
    seconds = rng.IntRnd(2, 3);
  } else if (v > 80) {
    game.TransitionEdge = rng.IntRnd(8, 1);
    seconds = rng.IntRnd(3, 4);
  } else if (v > -160) {
    game.TransitionEdge = 0;
    seconds = rng.IntRnd(4, 5);
  } else {
    game.TransitionEdge = -1;
    seconds = rng.IntRnd(2, 2);
  }
  if (game.Clock < 15 && game.TransitionEdge >= 0) seconds = rng.IntRnd(3, 1);
  TakeSeconds(game, seconds);

  const int p = rng.Roll(100);
  if (v >= -27) {
    game.BallPos = p >= 31 ? 1 : (p >= 13 ? 2 : (p >= 7 ? 3 : (p >= 4 ? 4 : 5)));
    if (game.BallPos != prev) {
      // The pass is told at 30 to 49 feet: the draw is made, the line
      // itself shows no distance.
      rng.Rnd();
      PostPlayWith(game, PlayKind::Offense,
                   [&] { return "receives a pass from " + game.Offense().CourtName(prev); });
    }
  } else {
    game.BallPos = p >= 61 ? 1 : (p >= 31 ? 2 : (p >= 11 ? 3 : 5));
  }
}

int DribbleMove(Game& game, const GamePlayer& o, const GamePlayer& d) {
  Rng& rng = *game.rng;
  const Side defSide = game.DefenseSide();
  const PressKind press = game.Defense().tactics.PressRule();
  const int pressBonus = PressBonus(press);
  const int start = game.Distance;
  double move = 200;
  int extra = 0;
  int beat = 0;

  for (int i = 1; i < 50 && (move > 195 || beat > 252); ++i) {
    rng.Reseed();
    beat = rng.IntRnd(300, 1);
    const int noise = game.DefNoise + 1;
    const int defend = DefenseRating(game, d, game.Distance) + pressBonus;
    const int dist = game.Distance;
    const int h = 2 * o.Handling + o.Quickness;
    if (dist > 20) {
      move = h - defend + beat + extra;
    } else if (dist >= 16) {
      move = h - defend + beat + extra - noise * (d.DefAware / 12.0);
    } else if (dist >= 9) {
      move = h - defend + beat + extra - noise * (d.DefAware / 10.0);
    } else if (dist >= 2) {
      move = o.Quickness * 0.5 + 2 * o.Handling + o.Strength * 0.5 - defend -
             noise * (d.DefAware / 5.0) + beat + extra;
    } else if (dist == 1) {
      move = 1;
    } else {
      move = 0;
    }

    if (ReachFoulBeat(press, beat)) {
      if (game.Defense().Fouls < 8 || beat == 1) {
        game.Fouler = PickFouler(game, dist, defSide);
        game.Distance = 0;
      }
    } else if (StealTryBeat(press, beat)) {
      if (rng.Roll(50) + defend > 170) game.Distance = -1;
    } else if (move > 155 || beat > 168) {
      if ((move > 400 || (move > 50 && beat - defend > 188)) && game.Distance < 20) {
        game.Fouler = PickFouler(game, dist, defSide);
        game.Distance = 0;
      } else {
        game.Distance -= 1;
        if (start - game.Distance > 5) extra = 25;
      }
    } else {
      bool loses = false;
      int v = 0;
      if (dist < 9) {
        if ((move - noise < -100 || beat * o.Handling / 100.0 <= 24) && o.OffAware + beat < 200) {
          loses = true;
          v = rng.IntRnd(45, 15) + d.Steal;
        }
      } else if ((move < -55 || beat < 3) && o.OffAware + beat < 150) {
        loses = true;
        v = rng.IntRnd(45, 20) + d.Steal;
      }
      if (loses) game.Distance = v <= 95 ? -1 : -2;
    }
  }

  int seconds = 0;
  if (game.Distance > 0) {
    game.Footwork = start - game.Distance;
    seconds = DribbleSeconds(rng, game.Footwork);
  }
  TakeSeconds(game, seconds);
  return game.Distance;
}

void RateOpenness(Game& game, const GamePlayer& o, const GamePlayer& d) {
  Rng& rng = *game.rng;
  rng.Reseed();
  const int n = rng.Roll(35);
  const int oEnergy = game.LineOf(game.Offense(), o).Energy;
  const int dEnergy = game.LineOf(game.Defense(), d).Energy;
  const double coachEdge = (game.Offense().OffCoach - game.Defense().DefCoach) / 2.0;
  const int oTired = IsTired(game, oEnergy) ? 1 : 0;
  const int dTired = IsTired(game, dEnergy) ? 1 : 0;
  const int r = DefenseRating(game, d, game.Distance);
  game.Openness = 0;
  const double sum = o.Passing + o.Handling + o.OffAware - r * 1.1 + 2 * game.Footwork +
                     game.TransitionEdge + n + coachEdge;
  const int oRoll = rng.Roll(20);
  const int dRoll = rng.Roll(20);
  game.Openness = CInt(sum - oRoll * oTired + dRoll * dTired);
}

int PassReceiver(int r, int p) {
  // Counted, not branched to: both numbers are rolls.
  const int band = (r <= 20) + (r < 16) + (r < 11) + (r < 7) + (r < 2);
  const ReceiverBand& receivers = kReceiverBands[band];
  const int place = (p <= receivers.over[0]) + (p <= receivers.over[1]) + (p <= receivers.over[2]) +
                    (p <= receivers.over[3]);
  return receivers.slot[place];
}

int RollPass(Game& game, int d) {
  Rng& rng = *game.rng;
  const GamePlayer& o = game.Offense().Court[game.BallPos];
  const GamePlayer& def = game.Defense().Court[game.BallPos];
  const double open = game.Openness;
  const int b = rng.IntRnd(200, 1);
  double score;
  if (d > 50) {
    score = b * 0.75 + open;
  } else if (d >= 16) {
    score = b + open;
  } else if (d >= 9) {
    score = b * 1.5 + open;
  } else if (d >= 1) {
    score = 2 * b + open;
  } else {
    score = 0;
  }
  if (b < 6) {
    score = -100;
  } else if (b > 189) {
    score = 200;
  }

  // Counted, not branched to: the score rests on a roll.
  const int band =
      (score <= 262) + (score <= 225) + (score <= 150) + (score <= 75) + (score <= -50);
  const PassBand& pass = kPassBands[band];
  int result = rng.IntRnd(pass.width, pass.from);
  if (band == kDangerBand) result = (b < 4 || result + def.Steal > 90) ? -1 : 0;
  if (score > 50 && result >= 21) result = 20;

  const double q = rng.IntRnd(100, 5) * o.Passing / 100.0;
  if (q < 4) {
    const int x = rng.IntRnd(25, 10) + def.Steal;
    result = x > 90 ? -1 : 0;
  }
  return result;
}

int PassBall(Game& game, int distance) {
  Rng& rng = *game.rng;
  const int r = RollPass(game, distance);
  if (r < 1) return r;
  int slot;
  do {
    slot = PassReceiver(r, rng.Roll(100));
  } while (slot == game.BallPos);

  int seconds;
  if (game.ShotClock < 10) {
    seconds = rng.IntRnd(2, 1);
  } else {
    switch (game.Offense().tactics.TempoRule()) {
      case TempoKind::SlowDown:
        seconds = rng.IntRnd(2, 3);
        break;
      case TempoKind::Normal:
        seconds = rng.IntRnd(2, 2);
        break;
      default:
        seconds = rng.IntRnd(2, 1);
        break;
    }
  }
  TakeSeconds(game, seconds);
  game.BallPos = slot;
  return r;
}

int PickStealer(Game& game) {
  HighestRoll highest;
  for (int slot = 1; slot <= 5; ++slot) {
    highest.Offer(slot, game.rng->Roll(120) + game.Defense().Court[slot].Steal);
  }
  return highest.slot;
}

}  // namespace courtmere
