// Copies both teams from the store into the game: depth charts, tactics,
// staff numbers, the crowd and the rosters. These are the only reads of the
// store a game makes.
#pragma once

#include <string>

#include "engine/game_model.h"

namespace courtmere {

// Reads the side's depth chart and tactics from its Team row, or from its
// ScrubTeam row when it has none; with neither, leaves them as they were.
// Also notes whether the school is the user's.
void LoadDepthAndTactics(Game& game, Side side);

// The staff numbers of both sides: offence and defence coach, trainer.
// Throws EngineError for a team with neither a coach nor a background row.
void LoadCoachValues(Game& game);

// The strength of the home crowd, from the rating and prestige of the home
// school's row as read with its chart; 10 without a row.
int CrowdStrength(const Game& game);

// The side's eligible players, in table order: the first-division players
// if the school has any, else its background players. At most 12 dress.
// Of the texts it reads only the short names.
void LoadRoster(Game& game, Side side);

// Reads the name, year and health of the side's roster, once a game: for a
// game that shows its plays, and for a dump. Health as the store has it, an
// injury of this game included.
void LoadFullTexts(Game& game, Side side);

}  // namespace courtmere
