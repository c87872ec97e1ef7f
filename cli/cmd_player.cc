// courtmere-cli player ID: a player's card with his lines year by year and
// his career.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/display_format.h"
#include "screens/player_career.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void PrintYears(const PlayerCareer& c) {
  TextTable table;
  for (const char* column : {"Year", "PPG", "RPG", "APG", "SPG", "BPG", "TOPG", "MPG", "+/-", "FG%",
                             "3P%", "FT%", "Ovr", "Shoot", "InSc", "Hand", "Pass", "PerD"}) {
    table.AddColumn("", column, TextTable::kRight);
  }
  for (const CareerYear& y : c.years) {
    table.AddRow(
        {std::to_string(y.year), FormatOneDecimal(y.ppg), FormatOneDecimal(y.rpg),
         FormatOneDecimal(y.apg), FormatOneDecimal(y.spg), FormatOneDecimal(y.bpg),
         FormatOneDecimal(y.topg), FormatOneDecimal(y.mpg), fmt::format("{:.0f}", y.plusMinus),
         FormatPercent(y.fgPercent), FormatPercent(y.threePercent), FormatPercent(y.ftPercent),
         fmt::format("{:.0f}", y.overall), std::to_string(y.jumpshot), std::to_string(y.inScoring),
         std::to_string(y.handling), std::to_string(y.passing), std::to_string(y.perrDefense)});
  }
  fmt::print("{}", table.Render());
}

void PrintCareer(const CareerTotals& t) {
  fmt::print(
      "\nCareer: {} games, {} minutes, {} points, {} rebounds, {} assists, {} steals, {} blocks, "
      "{} turnovers\n",
      t.games, t.minutes, t.points, t.rebounds, t.assists, t.steals, t.blocks, t.turnovers);
  fmt::print("FG {}-{} ({}%), 3P {}-{} ({}%), FT {}-{} ({}%); {} PPG, {} RPG, {} APG\n",
             t.shotsMade, t.shots, FormatPercent(t.fgPercent), t.threesMade, t.threes,
             FormatPercent(t.threePercent), t.ftMade, t.freeThrows, FormatPercent(t.ftPercent),
             FormatOneDecimal(t.ppg), FormatOneDecimal(t.rpg), FormatOneDecimal(t.apg));
}

void RunPlayer(CliContext& context, int id) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const std::optional<PlayerCareer> c = ReadPlayerCareer(session.Db(), id);
  if (!c) Refuse(fmt::format("There is no player with the Id {}.", id));
  fmt::print("{} (Id {}), {} {}, {}, {}, Overall {:.0f}\n", c->name, c->id, c->height, c->position,
             c->year, c->team, c->overall);
  if (c->years.empty()) {
    fmt::print("No season of his has ended yet.\n");
  } else {
    PrintYears(*c);
  }
  if (c->career) PrintCareer(*c->career);
}

}  // namespace

void AddPlayerCommand(CLI::App& app, CliContext& context) {
  auto id = std::make_shared<int>(0);
  CLI::App* cmd =
      app.add_subcommand("player", "A player's card with his lines year by year and his career");
  cmd->add_option("id", *id, "The player's Id")->required();
  cmd->callback([&context, id] { RunPlayer(context, *id); });
}

}  // namespace courtmere::cli
