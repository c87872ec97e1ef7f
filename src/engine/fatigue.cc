#include "engine/fatigue.h"

#include <algorithm>

#include "platform/numeric.h"

namespace courtmere {

namespace {

constexpr int kMaxRecoveredEnergy = 2000;

void DrainFloor(Game& game, GameSide& side, int elapsed) {
  const TempoKind tempo = side.tactics.TempoRule();
  const PressKind press = side.tactics.PressRule();
  for (int slot = 1; slot <= 5; ++slot) {
    GameStat& line = game.LineOf(side, side.Court[slot]);
    if (line.Energy >= 0) {
      line.Energy -= tempo == TempoKind::UpBeat ? CInt(1.5 * elapsed) : elapsed;
    }
    if (line.Energy >= 0) {
      if (press == PressKind::FullCourt) {
        line.Energy -= elapsed;
      } else if (press == PressKind::HalfCourt) {
        line.Energy = CInt(line.Energy - 0.5 * elapsed);
      }
    }
    line.SecondsPlayed += elapsed;
  }
}

void RecoverBench(GameSide& side, int elapsed) {
  const double gain = 2.5 * elapsed;
  for (int b = 1; b <= GameSide::kBenchPlaces; ++b) {
    const GamePlayer& man = side.Bench[b];
    GameStat* line = side.StatOf(man);  // none for an empty place
    if (line == nullptr) continue;
    // Whether he recovers is a coin toss to the processor: the energy is
    // chosen, not branched on.
    const int energy = line->Energy;
    const bool recovers =
        (energy < man.Endurance) & (energy < kMaxRecoveredEnergy) & !side.OnCourt(man.Id);
    const int recovered = std::min(CInt(energy + gain), kMaxRecoveredEnergy);
    line->Energy = recovers ? recovered : energy;
  }
}

}  // namespace

void ApplyElapsedTime(Game& game) {
  const int elapsed = game.LastClock - game.Clock;
  // No time gone: every sum below would add nothing.
  if (elapsed == 0) return;
  for (GameSide& side : game.sides) side.Team().SecondsPlayed += 5 * elapsed;
  for (GameSide& side : game.sides) DrainFloor(game, side, elapsed);
  for (GameSide& side : game.sides) RecoverBench(side, elapsed);
  game.LastClock = game.Clock;
}

void RestBetweenPeriods(Game& game) {
  for (GameSide& side : game.sides) {
    for (int i = 1; i <= side.RosterCount; ++i) {
      GameStat& line = side.Stats[i];
      const int endurance = side.Roster[i].Endurance;
      line.Energy = line.SecondsPlayed == 0 ? endurance : endurance - 150;
    }
  }
}

bool IsTired(const Game& game, int energy) {
  if (game.Half == 1) return energy < 1400;
  if (game.Half == 2) {
    if (game.Clock > 600) return energy < 1400;
    if (game.Clock > 300) return energy < 1100;
    return energy < 1000;
  }
  return energy < 1000;
}

}  // namespace courtmere
