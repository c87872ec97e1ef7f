#include "engine/fatigue.h"

#include <algorithm>

#include "platform/numeric.h"

namespace courtmere {

namespace {

constexpr int kMaxRecoveredEnergy = 2000;

// The five men on the floor lose energy and gain seconds; the men on the
// bench who are not also on the floor (a chart may name a man twice) recover.
void PassTime(Game& game, GameSide& side, int elapsed) {
  const int drain =
      side.tactics.TempoRule() == TempoKind::UpBeat ? CIntOfHalves(3 * elapsed) : elapsed;
  const PressKind press = side.tactics.PressRule();
  // The lines of the men on the floor, as bits. Bit 0 stands for every
  // blank record, whose seconds go to a scratch line, and for empty bench
  // places.
  unsigned onFloor = 1;
  for (int slot = 1; slot <= 5; ++slot) {
    const int index = side.StatIndexOf(side.Court[slot]);
    onFloor |= 1u << index;
    GameStat& line = index != 0 ? side.Stats[index] : game.ScratchLine();
    if (line.Energy >= 0) line.Energy -= drain;
    if (line.Energy >= 0) {
      if (press == PressKind::FullCourt) {
        line.Energy -= elapsed;
      } else if (press == PressKind::HalfCourt) {
        line.Energy = CIntOfHalves(2 * line.Energy - elapsed);
      }
    }
    line.SecondsPlayed += elapsed;
  }

  // No branch depends on who recovers: the processor could not foresee it.
  // An empty bench place or a copy of a man on the floor meets a set bit and
  // keeps his energy (an empty place reads and rewrites Stats[0] unchanged).
  for (int b = 1; b <= GameSide::kBenchPlaces; ++b) {
    const GamePlayer& man = side.Bench[b];
    const int index = side.StatIndexOf(man);
    GameStat& line = side.Stats[index];
    const int energy = line.Energy;
    const int benchOnly = static_cast<int>(~(onFloor >> index) & 1u);
    const int recovers = benchOnly & (energy < man.Endurance) & (energy < kMaxRecoveredEnergy);
    const int recovered = std::min(CIntOfHalves(2 * energy + 5 * elapsed), kMaxRecoveredEnergy);
    line.Energy = energy + ((recovered - energy) & -recovers);
  }
}

}  // namespace

void ApplyElapsedTime(Game& game) {
  const int elapsed = game.LastClock - game.Clock;
  // No time gone: every sum below would add nothing.
  if (elapsed == 0) return;
  for (GameSide& side : game.sides) side.Team().SecondsPlayed += 5 * elapsed;
  for (GameSide& side : game.sides) PassTime(game, side, elapsed);
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
