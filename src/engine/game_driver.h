// The game driver: the periods, the tip-off and the possession loop.
#pragma once

#include "engine/game_model.h"

namespace courtmere {

// Plays the game from the tip to the last period; score and statistics stay
// in the game. The teams must already be loaded (RunEngine does that).
void StartGame(Game& game, int live);

// The opening tip of the game or of an overtime.
void TipOff(Game& game);

// One turn of the period loop, from the label at its top to the loop test.
void PlayTurn(Game& game);

// The end-game check for the side that has just got the ball: the trailing
// defence may start fouling (the foul cycle runs; true), otherwise the
// offence picks its pace and shot.
bool EndGameCheck(Game& game, int limit, bool clockRunsBeforeFoul);

// Fouls by the defence until it reaches the bonus, then free throws.
void FoulCycle(Game& game, bool clockRunsBeforeFoul);

// A foul on the dribble (Fouler is set).
void NonShootingFoul(Game& game);

// The ball taken in after a non-shooting foul.
void InboundAfterFoul(Game& game);

// The last-second heave from far out.
void BuzzerBeater(Game& game);

}  // namespace courtmere
