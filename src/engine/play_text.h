// The game's basketball vocabulary: the texts of the play lines.
#pragma once

#include <string>

#include "engine/add_stat.h"
#include "engine/game_model.h"

namespace courtmere {

enum class PlayVariant : uint8_t {
  Hits,
  HitsFoul,
  Miss,
  ShootFoul,
  Block,
  NonShootFoul,
  Pass,
  Pass2,
  Travel
};

// A travel drawn as v of 1 to 3 is a charge.
inline bool IsCharge(PlayVariant variant, int v) {
  return variant == PlayVariant::Travel && v <= 3;
}

// The text of the variant for draw v, as PlayText describes it.
std::string BuildPlayText(const Game& game, int distance, PlayVariant variant, int v);

// Chooses a text of the variant for a play at `distance` feet. Every call
// reseeds the generator and draws v = 1..12, whether or not anyone reads the
// text; a travel drawn as a charge books the ball handler's foul. The text
// is built only when the game wants texts, and is empty otherwise.
//
// "Pass2" comes whole: the passer's name and the phrase, so that the
// receiver's name closes the line. The charge comes whole too. Every other
// text is the table's, which the caller closes (points and ")", a name).
// Inline: most games want no texts, and then this is a reseed and a draw.
[[gnu::always_inline]] inline std::string PlayText(Game& game, int distance, PlayVariant variant) {
  game.rng->Reseed();
  const int v = game.rng->IntRnd(12, 1);
  // The charge is a personal and a team foul of the ball handler.
  if (IsCharge(variant, v)) AddStat(game, Stat::Foul, SideWordRole::Offense, game.BallPos);
  if (!game.WantsText()) return {};
  return BuildPlayText(game, distance, variant, v);
}

// The table text for a given draw v, without side effects; the charge and
// "Pass2" give only their fixed part.
const char* PlayTableText(PlayVariant variant, int distance, int v);

}  // namespace courtmere
