// courtmere-cli teams: the dynasty's schools with their prestige, team rating
// and owner.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/prestige_bands.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunTeams(CliContext& context, const std::string& conference) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  Store& store = session.Db();
  if (!conference.empty()) RequireConference(session, conference);
  TextTable table;
  table.AddColumn("School", "", TextTable::kLeft);
  table.AddColumn("Conference", "", TextTable::kLeft);
  table.AddColumn("Prestige", "", TextTable::kRight);
  table.AddColumn("", "", TextTable::kLeft);
  table.AddColumn("Rating", "", TextTable::kRight);
  table.AddColumn("Owner", "", TextTable::kLeft);
  for (Rows rows =
           store.Query("SELECT SchoolName, Conference, Prestige, TeamRating, Owner FROM Team "
                       "WHERE ? = '' OR Conference = ? ORDER BY Conference, SchoolName",
                       conference, conference);
       rows.Next();) {
    const double prestige = rows.Double(2);
    table.AddRow({rows.Text(0), rows.Text(1), fmt::format("{:.1f}", prestige),
                  BandOf(prestige).Label, rows.Text(3), rows.Text(4)});
  }
  fmt::print("{}", table.Render());
}

}  // namespace

void AddTeamsCommand(CLI::App& app, CliContext& context) {
  auto conference = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand(
      "teams", "List the dynasty's schools with prestige, team rating and owner");
  cmd->add_option("--conference", *conference, "Only this conference's schools");
  cmd->callback([&context, conference] { RunTeams(context, *conference); });
}

}  // namespace courtmere::cli
