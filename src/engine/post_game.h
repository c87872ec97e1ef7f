// Post-game recording: a played game's statistics lines, taken from the
// day's result tables, go to the season figures of its players (held in
// memory) and to the team rows of TeamStats. For one game the players come
// first, then the teams; a batch goes in batch-index order.
#pragma once

#include <functional>

#include "engine/game_model.h"
#include "store/player_stats_store.h"

namespace courtmere {

class Store;
struct Config;

// The game rating of one line: 1.5 per assist, the points, 2 per steal,
// the rebounds, less the turnovers.
double GameRating(const GameStat& line);

// Adds the game at `batchIndex` to the season figures of every player who
// played, and sets his week's figures (averaged in on a Saturday).
void RecordPlayerStats(const DayResults& day, PlayerStatsStore& stats, const Config& config,
                       int batchIndex);

// Adds the game at `batchIndex` to both schools' TeamStats rows: their own
// figures, the result, the figures allowed. `tick` runs after each side's row.
void RecordTeamStats(Store& store, const DayResults& day, int batchIndex,
                     const std::function<void()>& tick = {});

}  // namespace courtmere
