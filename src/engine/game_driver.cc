#include "engine/game_driver.h"

#include <exception>
#include <string>

#include "engine/add_stat.h"
#include "engine/box_score.h"
#include "engine/engine_error.h"
#include "engine/fatigue.h"
#include "engine/live_screen.h"
#include "engine/offence.h"
#include "engine/play_log.h"
#include "engine/play_text.h"
#include "engine/shooting.h"
#include "engine/substitution.h"
#include "engine/team_loader.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kBonusFouls = 7;
constexpr int kDoubleBonusFouls = 10;

void FlipPossession(Game& game) {
  game.Possession = OtherSide(game.Possession);
}

bool UserTimeoutPending(const Game& game) {
  return game.UserSide == game.Possession && game.UserTimeoutDue == 1;
}

void TakeSeconds(Game& game, int seconds) {
  game.Clock -= seconds;
  game.ShotClock -= seconds;
}

// The user's timeout, called from the live screen.
void UserTimeout(Game& game) {
  if (game.UserSide) game.SideOf(*game.UserSide).TimeoutsLeft -= 1;
  game.Resume = 0;
  PostPlay(game, "TIMEOUT", PlayKind::TimeoutTeam);
  CheckSubs(game);
  game.UserTimeoutDue = 0;
  game.UserTimeoutAsked = 0;
  if (game.Live()) game.screen->WaitForResume(game);
}

// The officials' timeouts: one at the first dead ball after 16, 12, 8 and 4
// minutes are left, counted over the whole game.
void OfficialTimeout(Game& game) {
  static constexpr int kAt[4] = {960, 720, 480, 240};
  if (game.OfficialTimeouts >= 4 || game.Clock > kAt[game.OfficialTimeouts]) return;
  PostPlay(game, "TIMEOUT", PlayKind::Timeout);
  CheckSubs(game);
  ++game.OfficialTimeouts;
}

void DeadBallChange(Game& game) {
  if (game.UserTimeoutDue == 1) {
    UserTimeout(game);
  } else {
    OfficialTimeout(game);
  }
  game.ShotClock = 35;
  game.PossState = 0;
  game.Rebounded = 0;
  InboundBall(game);
  if (EndGameCheck(game, 100, false)) return;

  BringBallUp(game);
  if (game.TransitionEdge < 0) {
    game.ShotClock = 35;
    PostPlay(game, "turnover in the back court", PlayKind::Offense);
    AddStat(game, Stat::Turnover, SideWordRole::Offense, game.BallPos);
    FlipPossession(game);
    game.TransitionEdge = 20;
    game.Distance = game.rng->IntRnd(28, 7);
  } else {
    game.Distance = 35;
    PostPlay(game, "moves the ball upcourt", PlayKind::Offense);
  }
}

void LiveChange(Game& game) {
  game.PossState = 0;
  if (EndGameCheck(game, 120, game.Possession == Side::Home)) return;
  game.ShotClock = 35;
  game.PossState = 0;
  if (game.BallPos >= 3) {
    // The outlet pass to a guard.
    game.Rebounded = 0;
    const int guard = game.rng->Roll(10) > 7 ? 2 : 1;
    PostPlayWith(game, PlayKind::Offense,
                 [&] { return "passes the ball to " + game.Offense().CourtName(guard); });
    game.BallPos = guard;
  }
  game.Distance = 35;
  const int seconds = game.rng->IntRnd(2, 3);
  TakeSeconds(game, game.Clock >= 5 ? seconds : 1);
  game.TransitionEdge = 10;
  PostPlay(game, "moves across the timeline", PlayKind::Offense);
  game.Openness = 50;
}

// The change of possession (and the user's timeout) at the top of a turn.
void Change(Game& game) {
  ApplyElapsedTime(game);
  if (game.PossState > 0) FlipPossession(game);
  if ((game.PossState > 1 && game.Half < 3) || game.UserTimeoutDue == 1) {
    DeadBallChange(game);
  } else {
    LiveChange(game);
  }
}

void StolenBall(Game& game) {
  game.BallPos = PickStealer(game);
  PostPlay(game, "stole the ball!", PlayKind::Defense);
  AddStat(game, Stat::Steal, SideWordRole::Defense, game.BallPos);
  game.PossState = 1;
}

// The dribble drive and what follows it: a turnover, a foul, a shot or a pass.
void DriveOrPass(Game& game) {
  const GamePlayer& o = game.Offense().Court[game.BallPos];
  const GamePlayer& d = game.Defense().Court[game.BallPos];
  const int moved = DribbleMove(game, o, d);
  if (moved < 0) {
    AddStat(game, Stat::Turnover, SideWordRole::Offense, game.BallPos);
    if (moved == -2) {
      StolenBall(game);
    } else {
      const std::string text = PlayText(game, game.Distance, PlayVariant::Travel);
      PostPlay(game, text, PlayKind::Offense);
      CheckSubs(game);
      game.PossState = 2;
    }
    return;
  }
  if (moved == 0) {
    NonShootingFoul(game);
    return;
  }
  const int shot = ShootDecision(game, o, d);
  if (shot != 0) {
    ResolveShot(game, shot);
    return;
  }
  game.Passer = game.BallPos;
  game.Rebounded = 0;
  RateOpenness(game, o, d);
  const int r = PassBall(game, game.Distance);
  if (r >= 1) {
    const std::string text = PlayText(game, game.Distance, PlayVariant::Pass2);
    PostPlay(game, text, PlayKind::Pass);
    game.Distance = r;
    return;
  }
  if (r < 0) {
    StolenBall(game);
  } else {
    PostPlay(game, "throws the ball out-of-bounds", PlayKind::Offense);
    CheckSubs(game);
    game.PossState = 2;
  }
  // The turnover goes to the offence's man in the slot as it now stands.
  AddStat(game, Stat::Turnover, SideWordRole::Offense, game.BallPos);
}

// Free throws after a foul in the bonus: one, and a second when the first
// falls or in the double bonus. The last one's result.
int BonusFreeThrows(Game& game) {
  int last = FreeThrow(game);
  if (last == 1 || game.Defense().Fouls >= kDoubleBonusFouls) last = FreeThrow(game);
  return last;
}

void AfterLastFreeThrow(Game& game, int last) {
  if (last == 1) {
    game.PossState = 2;
  } else {
    game.Distance = Rebound(game, 10, false);
  }
}

void ResetPeriod(Game& game) {
  ResetPeriodLines(game);
  game.Openness = 20;
  game.Footwork = 0;
  game.PossState = 0;
  game.ShotClock = 35;
  game.Distance = 35;
  game.Clock = game.Half > 2 ? 300 : 1200;
  game.LastClock = game.Clock;
  game.Rebounded = 0;
  if (game.Half < 3) {
    game.Home().Fouls = 0;
    game.Away().Fouls = 0;
  }
  game.Fouler = 0;
  game.rng->Reseed();
}

void StartOfPlay(Game& game) {
  const bool tied = game.Home().Score == game.Away().Score;
  int timeouts = 3;
  if (game.Half == 1) {
    TipOff(game);
  } else if (game.Half > 2 && tied) {
    TipOff(game);
    timeouts = 1;
  } else {
    // The tip's loser takes the ball out first.
    game.Possession = game.TipWinner;
    game.PossState = 2;
  }
  for (GameSide& side : game.sides) side.TimeoutsLeft = timeouts;
}

bool PeriodGoesOn(const Game& game) {
  return (game.Half < 3 && game.Clock >= 1) || (game.Half > 2 && game.Overtime && game.Clock >= 1);
}

// The next period starts with the depth chart's starters.
void RestoreStarters(Game& game) {
  BuildFloor(game);
  for (GameSide& side : game.sides) side.IsStarter.fill(1);
  for (int slot = 1; slot <= 5; ++slot) {
    // Design decision: anyone fit to play may fill a starter's place that
    // the chart cannot, whatever his energy.
    if (game.Away().Court[slot].Id == 0) SubstitutePlayer(game, slot, Side::Away, 0);
    if (game.Home().Court[slot].Id == 0) SubstitutePlayer(game, slot, Side::Home, 0);
  }
}

void LiveHalftime(Game& game) {
  game.SubWindow = 1;
  for (GameSide& side : game.sides) side.TimeoutsLeft = 3;
  LoadDepthAndTactics(game, Side::Home);
  LoadDepthAndTactics(game, Side::Away);
  BuildFloor(game);
  game.Resume = 0;
  PostPlay(game, "End of First Half", PlayKind::Halftime);
  game.screen->Halftime(game);
  game.screen->WaitForResume(game);
}

// The close finish of a game whose finish the user coaches: the last three
// minutes of the second half or an overtime, the margin at 8 or less. The
// screen opens as at the tip, paused with the lineup open.
void OpenFinishWhenClose(Game& game) {
  if (game.Half < 2 || game.Clock >= 180) return;
  const int margin = game.Home().Score - game.Away().Score;
  if (margin > 8 || margin < -8) return;
  game.FinishWatch = false;
  game.LiveGame = 1;
  game.SubWindow = 1;
  game.Resume = 0;
  game.screen->PrepareGame(game);
}

void PlayPeriods(Game& game, int live) {
  for (game.Half = 1; game.Half <= 7; ++game.Half) {
    ResetPeriod(game);
    StartOfPlay(game);
    while (PeriodGoesOn(game)) {
      if (game.FinishWatch) OpenFinishWhenClose(game);
      PlayTurn(game);
    }
    RestBetweenPeriods(game);
    if (game.Half < 3 || game.Overtime) RestoreStarters(game);
    AppendPeriodLog(game);
    game.Overtime = game.Half > 1 && game.Home().Score == game.Away().Score;
    if (game.Half == 1 && live == 1 && game.Live()) LiveHalftime(game);
  }
  game.Half = 7;
}

}  // namespace

void TipOff(Game& game) {
  Rng& rng = *game.rng;
  game.BallPos = 5;
  const int home = rng.Roll(50) + game.Home().Court[5].ShotBlock;
  const int away = rng.Roll(50) + game.Away().Court[5].ShotBlock;
  // The lower total wins the tip; a tie goes to the home side.
  game.Possession = away >= home ? Side::Home : Side::Away;
  game.TipWinner = game.Possession;
  PostPlay(game, "Wins the tip", PlayKind::Offense);
  const int p = rng.Roll(40);
  game.BallPos = p > 30 ? 1 : (p > 20 ? 2 : (p > 10 ? 3 : 4));
  PostPlay(game, "gathers the ball", PlayKind::Offense);
  TakeSeconds(game, rng.IntRnd(3, 2));
  PostPlay(game, "brings it upcourt", PlayKind::Offense);
}

void PlayTurn(Game& game) {
  if (game.ShotClock < 1 && game.Rebounded == 0) {
    AddStat(game, Stat::Turnover, SideWordRole::Offense, game.BallPos);
    PostPlay(game, "has a shotclock violation", PlayKind::Offense);
    CheckSubs(game);
    game.PossState = 2;
  }
  game.FoulTried = false;
  if (game.UserEndgameSide != Side::Away) {
    game.Away().Pace = 0;
    game.Away().ShotNeed = 0;
  }
  if (game.UserEndgameSide != Side::Home) {
    game.Home().Pace = 0;
    game.Home().ShotNeed = 0;
  }

  for (;;) {
    if (UserTimeoutPending(game) || game.PossState > 0) Change(game);
    if (game.FoulTried || game.Clock < 1) return;
    if (game.Clock < 3 && game.Distance > 28) {
      BuzzerBeater(game);
      game.Clock = 0;
      return;
    }
    game.Footwork = 0;
    game.Blocker = 0;
    if (UserTimeoutPending(game)) continue;
    const GamePlayer& o = game.Offense().Court[game.BallPos];
    const GamePlayer& d = game.Defense().Court[game.BallPos];
    const int shot = ShootDecision(game, o, d);
    if (shot != 0) {
      ResolveShot(game, shot);
      return;
    }
    if (UserTimeoutPending(game)) continue;
    DriveOrPass(game);
    return;
  }
}

bool EndGameCheck(Game& game, int limit, bool clockRunsBeforeFoul) {
  GameSide& offense = game.Offense();
  const int lead = offense.Score - game.Defense().Score;
  const bool late = game.Half >= 2;
  if (late && ((lead >= 4 && lead <= 10 && game.Clock < limit) ||
               (lead >= 1 && lead <= 10 && game.Clock < 37))) {
    FoulCycle(game, clockRunsBeforeFoul);
    return true;
  }
  if (!late || game.UserEndgameSide == game.Possession) return false;
  const int deficit = -lead;
  if (deficit >= 4 && deficit <= 10 && game.Clock < 100) {
    offense.Pace = 1;
  } else if (deficit >= 1 && deficit <= 10 && game.Clock < 37) {
    offense.Pace = 1;
    offense.ShotNeed = deficit < 3 ? 2 : 3;
  } else if (lead >= 1 && lead <= 9 && game.Clock < 150) {
    offense.Pace = 2;
  }
  return false;
}

void FoulCycle(Game& game, bool clockRunsBeforeFoul) {
  GameSide& defense = game.Defense();
  int last = -1;
  game.FoulTried = false;
  do {
    game.FoulTried = true;
    const int fouler = PickFouler(game, 35, game.DefenseSide());
    AddStat(game, Stat::Foul, SideWordRole::Defense, fouler);
    const std::string text = PlayText(game, game.Distance, PlayVariant::NonShootFoul);
    if (clockRunsBeforeFoul) game.Clock -= game.rng->IntRnd(2, 1);
    PostPlayWith(game, PlayKind::Offense, [&] { return text + game.Defense().CourtName(fouler); });
    CheckSubs(game);
    if (defense.Fouls >= kBonusFouls) last = BonusFreeThrows(game);
    if (defense.Fouls < kBonusFouls) InboundAfterFoul(game);
  } while (!game.FoulTried || defense.Fouls < kBonusFouls);
  if (last >= 0) AfterLastFreeThrow(game, last);
}

void NonShootingFoul(Game& game) {
  const std::string text = PlayText(game, game.Distance, PlayVariant::NonShootFoul);
  AddStat(game, Stat::Foul, SideWordRole::Defense, game.Fouler);
  PostPlayWith(game, PlayKind::Offense,
               [&] { return text + game.Defense().CourtName(game.Fouler); });
  CheckSubs(game);
  game.Fouler = 0;
  if (game.Defense().Fouls >= kBonusFouls) {
    AfterLastFreeThrow(game, BonusFreeThrows(game));
  } else {
    InboundAfterFoul(game);
  }
}

void InboundAfterFoul(Game& game) {
  game.ShotClock = 35;
  game.BallPos = 5;
  game.Openness = 20;
  // Design decision: the inbound pass is thrown from 15 feet; the ball
  // handler's distance is not reset before it.
  PostPlay(game, "takes the ball out of bounds", PlayKind::Offense);
  game.Passer = 5;
  game.Rebounded = 0;
  for (int i = 0; i < 19 && game.Distance < 1; ++i) {
    game.Distance = PassBall(game, 15);
    if (game.Distance < 1) game.Distance = 20;
  }
  const std::string text = PlayText(game, game.Distance, PlayVariant::Pass);
  PostPlayWith(game, PlayKind::Offense,
               [&] { return text + game.Offense().CourtName(game.Passer); });
}

void BuzzerBeater(Game& game) {
  PostPlay(game, "goes for the Buzzer beater...", PlayKind::Offense);
  game.rng->Reseed();
  const int p = game.rng->Roll(100);
  const int slot = game.BallPos;
  if (p < 5) {
    AddStat(game, Stat::ShotAttempt, SideWordRole::Offense, slot);
    AddStat(game, Stat::ThreeAttempt, SideWordRole::Offense, slot);
    AddStat(game, Stat::ShotMade, SideWordRole::Offense, slot);
    AddStat(game, Stat::AllowPoint, SideWordRole::Defense, slot);
    AddStat(game, Stat::AllowPoint, SideWordRole::Defense, slot);
    AddStat(game, Stat::ThreeMade, SideWordRole::Offense, slot);
    AddStat(game, Stat::AllowPoint, SideWordRole::Defense, slot);
    game.Offense().Score += 3;
    PostPlayWith(game, PlayKind::Offense, [&] {
      GameSide& offense = game.Offense();
      return "hits it! (" + std::to_string(game.LineOf(offense, offense.Court[slot]).Points) + ")";
    });
  } else {
    PostPlay(game, "misses the prayer.", PlayKind::Offense);
    AddStat(game, Stat::ShotAttempt, SideWordRole::Offense, slot);
    AddStat(game, Stat::ThreeAttempt, SideWordRole::Offense, slot);
  }
}

void StartGame(Game& game, int live) {
  try {
    for (GameSide& side : game.sides) {
      side.Score = 0;
      side.Fouls = 0;
    }
    ResetGameStats(game);
    game.UserEndgameSide.reset();
    StartGameLog(game);
    PlayPeriods(game, live);
    FinishGameLog(game);
    if (!game.BoxFileName.empty()) WriteBoxScore(game);
    game.LogCount = 0;
    if (game.Live()) game.screen->ShowFinal(game);
  } catch (const std::exception& error) {
    // The periods played so far stay in the log, if it can be written.
    try {
      FinishGameLog(game);
    } catch (const std::exception&) {
    }
    const int code = dynamic_cast<const EngineError*>(&error) != nullptr
                         ? static_cast<const EngineError&>(error).Code()
                         : 0;
    game.session->ui.Message("The error occured in StartGame, the code is " + std::to_string(code) +
                             ". The " + "message is " + error.what());
  }
}

}  // namespace courtmere
