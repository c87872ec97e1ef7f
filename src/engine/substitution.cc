#include "engine/substitution.h"

#include <algorithm>
#include <string>
#include <utility>

#include "engine/injury.h"
#include "engine/live_screen.h"
#include "engine/play_log.h"

namespace courtmere {

namespace {

constexpr int kFouledOut = 5;

// Rows: Half 1; Half 2 above 600; Half 2 301-600; Half 2 to 300; overtime.
struct PatternLimits {
  int minEnergy[5];
  int returnMargin[5];
};

constexpr PatternLimits kNormal = {{1450, 1400, 1150, 950, 900}, {200, 150, 150, 100, 100}};
constexpr PatternLimits kMore = {{1500, 1500, 1300, 1100, 1100}, {200, 150, 100, 100, 100}};
constexpr PatternLimits kLess = {{1350, 1250, 1000, 900, 900}, {150, 150, 100, 100, 100}};

int PeriodRow(const Game& game) {
  if (game.Half == 1) return 0;
  if (game.Half == 2) {
    if (game.Clock > 600) return 1;
    if (game.Clock > 300) return 2;
    return 3;
  }
  return 4;
}

const PatternLimits& LimitsOf(SubPattern pattern) {
  switch (pattern) {
    case SubPattern::More:
      return kMore;
    case SubPattern::Less:
      return kLess;
    default:
      return kNormal;
  }
}

bool UserCoached(const Game& game, Side side) {
  return game.Live() && game.UserSide == side && !game.screen->AutoSubstitution();
}

void ShowSubsOnScreen(Game& game) {
  if (!game.Live()) return;
  if (game.UserSubAsked == 1) game.screen->OpenSubstitutions(game);
  game.screen->ShowSubs(game);
}

// Step 3 of the floor check: men with five fouls or a real injury leave.
void RemoveMenWhoMustLeave(Game& game) {
  for (int slot = 1; slot <= 5; ++slot) {
    for (Side side : {Side::Home, Side::Away}) {
      GameSide& team = game.SideOf(side);
      GamePlayer& man = team.Court[slot];
      const GameStat* line = team.StatOf(man);
      const bool fouledOut = line != nullptr && line->Fouls >= kFouledOut;
      if (!fouledOut && man.TimeInjured <= 1) continue;
      PostPlayWith(game, PlayKind::Foul, [&] {
        return team.TextsOf(man).AbbrName +
               (fouledOut ? " fouled out of the game" : " left the game with an injury");
      });
      man.MakeBlank();
      SubstitutePlayer(game, slot, side, 0);
      if (UserCoached(game, side)) {
        game.SubForced = 1;
        game.screen->PlayerMustLeave(game, fouledOut);
      }
    }
  }
}

// The floor check's line for the period row (PeriodRow) and pattern.
FloorCheckLine FloorCheckAt(int row, SubPattern pattern, Side side) {
  const PatternLimits& limits = LimitsOf(pattern);
  static constexpr int kMaxFouls[5] = {3, 4, 5, 5, 5};
  int maxFouls = kMaxFouls[row];
  if (row == 2 && side == Side::Away) maxFouls = 4;
  return {limits.minEnergy[row], maxFouls, limits.returnMargin[row], row >= 2 ? 1 : 0};
}

// True when every floor record of both sides has a statistics line: then
// no slot is blank or held by a man without a line, and the fill passes
// would find nothing to do.
bool EveryManOnTheFloorHasALine(const Game& game) {
  for (const GameSide& side : game.sides) {
    for (int slot = 1; slot <= 5; ++slot) {
      if (side.StatIndexOf(side.Court[slot]) == 0) return false;
    }
  }
  return true;
}

}  // namespace

FloorCheckLine FloorCheck(const Game& game, SubPattern pattern, Side side) {
  return FloorCheckAt(PeriodRow(game), pattern, side);
}

const std::array<int, 7>& SubstitutionOrder(int slot) {
  static constexpr std::array<std::array<int, 7>, 6> kOrder = {{
      {0, 0, 0, 0, 0, 0, 0},
      {1, 6, 11, 7, 12, 8, 13},
      {2, 7, 12, 8, 13, 6, 11},
      {3, 8, 13, 7, 12, 9, 14},
      {4, 9, 14, 10, 15, 8, 13},
      {5, 10, 15, 9, 14, 8, 13},
  }};
  return kOrder[slot];
}

int DepthCandidate(const Game& game, int entry, Side side, int minEnergy) {
  const GameSide& team = game.SideOf(side);
  const int id = team.Depth[entry];
  if (id == 0 || team.OnCourt(id)) return 0;
  // A chart Id who is not in the roster has a blank line: no energy, no fouls.
  const int index = team.DepthStatIndex(entry);
  const GameStat* line = index != 0 ? &team.Stats[index] : nullptr;
  const int energy = line != nullptr ? line->Energy : 0;
  const int fouls = line != nullptr ? line->Fouls : 0;
  // A roster record's line mostly stands at his own index.
  const GamePlayer* record = index != 0 && index <= team.RosterCount && team.Roster[index].Id == id
                                 ? &team.Roster[index]
                                 : team.FindRoster(id);
  const int timeInjured = record != nullptr ? record->TimeInjured : 0;
  if (energy < minEnergy) return 0;
  if (fouls >= kFouledOut) return 0;
  if (timeInjured > 1) return 0;
  if (game.Half == 1 && fouls >= 3) return 0;
  if (game.Half == 2 && game.Clock >= 301 && fouls >= 4) return 0;
  return id;
}

void SubstitutePlayer(Game& game, int slot, Side side, int minEnergy) {
  GameSide& team = game.SideOf(side);
  int id = 0;
  for (int entry : SubstitutionOrder(slot)) {
    id = DepthCandidate(game, entry, side, minEnergy);
    if (id != 0) break;
  }

  int b = 0;
  for (int i = 1; i <= GameSide::kBenchPlaces; ++i) {
    if (team.Bench[i].Id == id) b = i;
  }

  if (b == 0) {
    // Nobody on the bench: the reserve queue turns. The man in the slot goes
    // to its head place and then to the back; the next reserve comes in.
    std::swap(team.Court[slot], team.Reserve[0]);
    // Everyone from place 1 to ReserveCount moves up one; the head goes last.
    std::rotate(team.Reserve.begin(), team.Reserve.begin() + 1,
                team.Reserve.begin() + team.ReserveCount + 1);
    team.IsStarter[slot] = team.Court[slot].Id == team.Depth[slot] ? 1 : 0;
    return;
  }

  GamePlayer outgoing = team.Court[slot].Id == 0 ? team.Reserve[1] : std::move(team.Court[slot]);
  team.Court[slot] = std::move(team.Bench[b]);
  team.IsStarter[slot] = team.Court[slot].Id == team.Depth[slot] ? 1 : 0;
  if (game.WriteLog) {
    // Substitutions are noted in the log without time or score.
    std::string& line = NewLogLine(game);
    line += team.Team().TeamName;
    line += " SUB - ";
    line += team.CourtName(slot);
    line += " in for ";
    line += team.TextsOf(outgoing).AbbrName;
  }
  team.Bench[b] = std::move(outgoing);
}

void RotatePlayer(Game& game, Side side, int slot, const FloorCheckLine& line) {
  GameSide& team = game.SideOf(side);
  const int starterId = team.Depth[slot];
  if (team.Court[slot].Id != starterId) {
    const int index = team.DepthStatIndex(slot);
    const GameStat* starter = index != 0 ? &team.Stats[index] : nullptr;
    const int energy = starter != nullptr ? starter->Energy : 0;
    const int fouls = starter != nullptr ? starter->Fouls : 0;
    if (energy > line.MinEnergy + line.ReturnMargin && fouls < line.MaxFouls) {
      SubstitutePlayer(game, slot, side, line.MinEnergy);
    }
    return;
  }
  const GameStat& own = game.LineOf(team, team.Court[slot]);
  if (own.Fouls >= line.MaxFouls || own.Energy < line.MinEnergy) {
    SubstitutePlayer(game, slot, side, line.MinEnergy);
    return;
  }
  const int lead = side == Side::Home ? game.Home().Score - game.Away().Score
                                      : game.Away().Score - game.Home().Score;
  if (line.RestLeaders == 1 && team.IsStarter[slot] == 1 && lead >= 20) {
    SubstitutePlayer(game, slot, side, line.MinEnergy);
  }
}

void CheckSubs(Game& game) {
  game.SubWindow = 1;
  InjuryCheck(game);
  RemoveMenWhoMustLeave(game);

  // The period row stays the same through the check: nothing in it moves
  // the clock.
  const int row = PeriodRow(game);
  int minEnergy = 0;
  for (int slot = 1; slot <= 5; ++slot) {
    for (Side side : {Side::Home, Side::Away}) {
      if (UserCoached(game, side)) continue;
      if (side == game.Possession && slot == game.BallPos) continue;
      const GamePlayer& man = game.SideOf(side).Court[slot];
      const FloorCheckLine line = FloorCheckAt(row, man.Pattern, side);
      minEnergy = line.MinEnergy;
      RotatePlayer(game, side, slot, line);
    }
  }
  if (EveryManOnTheFloorHasALine(game)) {
    ShowSubsOnScreen(game);
    return;
  }
  for (int slot = 1; slot <= 5; ++slot) {
    for (Side side : {Side::Home, Side::Away}) {
      if (UserCoached(game, side)) continue;
      GameSide& team = game.SideOf(side);
      if (team.Court[slot].Id == 0 || team.StatOf(team.Court[slot]) == nullptr) {
        SubstitutePlayer(game, slot, side, minEnergy);
      }
    }
  }

  // Design decision: a slot that neither the chart nor the reserve queue
  // could fill takes anyone fit to play at once (as the next play line
  // would), so that no blank record plays between here and that line.
  for (int slot = 1; slot <= 5; ++slot) {
    for (Side side : {Side::Home, Side::Away}) {
      if (game.SideOf(side).Court[slot].Id == 0) SubstitutePlayer(game, slot, side, 0);
    }
  }

  ShowSubsOnScreen(game);
}

}  // namespace courtmere
