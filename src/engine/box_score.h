// The box score: the text file of both teams' statistics lines, written at
// the end of a game and read back into grids by the screens.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/game_model.h"

namespace courtmere {

// The lines of the box score, each without its line end.
std::vector<std::string> FormatBoxScore(const Game& game);

// Replaces the game's BoxFileName with its box score.
void WriteBoxScore(const Game& game);

// One grid of the box-score screens: rows 1 to 14 (12 players, the dashes,
// the team), 18 fields each, trimmed.
struct BoxGrid {
  static constexpr int kRows = 14;
  static constexpr int kFields = 18;
  std::array<std::array<std::string, kFields>, kRows + 1> Rows;  // row 0 unused
};

// Reads the home and the away table of a box-score file into two grids.
std::array<BoxGrid, 2> LoadBoxGrids(const std::filesystem::path& file);

}  // namespace courtmere
