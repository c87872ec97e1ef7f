// courtmere-cli coach: the user's career as a head coach and his history
// season by season.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/coach_career.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunCoach(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const CoachCareer c = ReadCoachCareer(session.Db());
  const int games = c.wins + c.losses;
  fmt::print("{}, head coach of {}\n", c.name, c.team);
  fmt::print("Seasons: {}   Overall Record: {}-{} ({:.3f})   Conf. Championships: {}\n", c.seasons,
             c.wins, c.losses, games > 0 ? static_cast<double>(c.wins) / games : 0.0, c.confChamps);
  fmt::print(
      "NCT: {} apps, {}-{}, {} Final Fours, {} titles   ACT: {} apps, {}-{}, {} Final "
      "Fours, {} titles\n",
      c.nctApps, c.nctWins, c.nctLosses, c.nctFinalFours, c.nctChamps, c.actApps, c.actWins,
      c.actLosses, c.actFinalFours, c.actChamps);
  fmt::print("Prestige change: {:.2f}\n\n", c.prestigeChange);
  TextTable table;
  for (const char* column : kCoachHistoryColumns) {
    const std::string_view name(column);
    const bool number = name == "Season" || name == "Wins" || name == "Losses" ||
                        name == "Conf Ws" || name == "Conf Ls";
    table.AddColumn("", column, number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const auto& row : c.history) table.AddRow({row.begin(), row.end()});
  fmt::print("{}", table.Render());
}

}  // namespace

void AddCoachCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd =
      app.add_subcommand("coach", "Your career as a head coach and your history season by season");
  cmd->callback([&context] { RunCoach(context); });
}

}  // namespace courtmere::cli
