// The game's basketball vocabulary: the texts of the play lines.
#pragma once

#include <string>

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

// Chooses a text of the variant for a play at `distance` feet. Every call
// reseeds the generator and draws v = 1..12, whether or not anyone reads the
// text; a travel drawn as a charge books the ball handler's foul. The text
// is built only when the game wants texts, and is empty otherwise.
//
// "Pass2" comes whole: the passer's name and the phrase, so that the
// receiver's name closes the line. The charge comes whole too. Every other
// text is the table's, which the caller closes (points and ")", a name).
std::string PlayText(Game& game, int distance, PlayVariant variant);

// The table text for a given draw v, without side effects; the charge and
// "Pass2" give only their fixed part.
const char* PlayTableText(PlayVariant variant, int distance, int v);

}  // namespace courtmere
