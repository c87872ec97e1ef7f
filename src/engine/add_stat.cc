#include "engine/add_stat.h"

namespace courtmere {

namespace {

// Applies the statistic to one line; `player` says whether it is a player's
// line (plus-minus counts) or the team's.
void Book(GameStat& line, Stat stat, bool player) {
  switch (stat) {
    case Stat::Assist:
      ++line.Assists;
      break;
    case Stat::ShotAttempt:
      ++line.ShotAttempts;
      break;
    case Stat::ShotMade:
      ++line.ShotsMade;
      line.Points += 2;
      if (player) line.PlusMinus += 2;
      break;
    case Stat::ThreeAttempt:
      ++line.ThreeAttempts;
      break;
    case Stat::ThreeMade:
      ++line.ThreesMade;
      line.Points += 1;
      if (player) line.PlusMinus += 1;
      break;
    case Stat::OffRebound:
      ++line.OffRebounds;
      break;
    case Stat::Turnover:
      ++line.Turnovers;
      break;
    case Stat::FreeThrowAttempt:
      ++line.FreeThrowAttempts;
      break;
    case Stat::FreeThrowMade:
      ++line.FreeThrowsMade;
      line.Points += 1;
      if (player) line.PlusMinus += 1;
      break;
    case Stat::DefRebound:
      ++line.DefRebounds;
      break;
    case Stat::ShotBlock:
      ++line.ShotBlocks;
      break;
    case Stat::Steal:
      ++line.Steals;
      break;
    case Stat::Foul:
      ++line.Fouls;
      break;
    case Stat::AllowPoint:
      if (player) line.PlusMinus -= 1;
      break;
  }
}

}  // namespace

void AddStat(Game& game, Stat stat, SideWordRole role, int slot) {
  GameSide& side = game.SideOf(role);
  GameStat* line = side.StatOf(side.Court[slot]);
  Book(line != nullptr ? *line : side.Unattributed, stat, true);
  if (stat == Stat::AllowPoint) return;
  Book(side.Team(), stat, false);
  if (stat == Stat::Foul) ++side.Fouls;
}

}  // namespace courtmere
