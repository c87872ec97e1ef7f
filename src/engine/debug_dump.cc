#include "engine/debug_dump.h"

#include <exception>
#include <fstream>

#include "engine/engine_error.h"
#include "engine/team_loader.h"
#include "store/session.h"

namespace courtmere {

namespace {

void PlaceLine(std::string& out, const GameSide& side, int number, const GamePlayer& man,
               bool withPattern) {
  out += std::to_string(number) + ". ";
  out += man.Id == 0 ? std::string("None") : side.TextsOf(man).Name;
  out += " ID: " + std::to_string(man.Id);
  if (withPattern) out += std::string(", SubRate: ") + SubPatternText(man.Pattern);
  out += '\n';
}

void SideBlocks(std::string& out, const GameSide& side) {
  const std::string& school = side.Team().TeamName;
  out += '\n' + school + " Starters\n";
  for (int slot = 1; slot <= 5; ++slot) PlaceLine(out, side, slot, side.Court[slot], false);
  out += '\n' + school + " Reserves\n";
  for (int b = 1; b <= GameSide::kBenchPlaces; ++b) PlaceLine(out, side, b, side.Bench[b], true);
  out += '\n' + school + " Deep Bench\n";
  for (int r = 1; r <= GameSide::kMaxReserves; ++r) PlaceLine(out, side, r, side.Reserve[r], true);
  out += '\n' + school + " Stats and Info\n";
  for (int i = 1; i <= GameSide::kTeamLine; ++i) {
    const GameStat& line = side.Stats[i];
    out += "ID: " + std::to_string(line.Id) + " , Fouls = " + std::to_string(line.Fouls) +
           " , Endurance = " + std::to_string(line.Energy) + '\n';
  }
}

}  // namespace

std::string DebugDumpText(const Game& game) {
  std::string out;
  out += game.Home().Team().TeamName + " Score: " + std::to_string(game.Home().Score) + '\n';
  out += game.Away().Team().TeamName + " Score: " + std::to_string(game.Away().Score) + '\n';
  out += "Half: " + std::to_string(game.Half) + ", Time: " + std::to_string(game.Clock) + '\n';
  out += '\n';
  SideBlocks(out, game.Home());
  out += "\n\n";
  SideBlocks(out, game.Away());
  return out;
}

std::filesystem::path DebugDump(Game& game) {
  // The names are read now if the game had no use for them. Design decision:
  // a store that fails here leaves them blank rather than hiding the fault
  // that asked for the dump.
  try {
    for (Side side : {Side::Home, Side::Away}) LoadFullTexts(game, side);
  } catch (const std::exception&) {
  }
  const std::string name = game.Home().Team().TeamName + "-" + game.Away().Team().TeamName +
                           std::to_string(game.Clock) + ".txt";
  const std::filesystem::path file = game.session->folder.Root() / name;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  if (!out) throw EngineError("cannot write " + file.string());
  out << DebugDumpText(game);
  out.close();
  game.session->ui.Message("The Debug file " + name + " has been created.");
  return file;
}

}  // namespace courtmere
