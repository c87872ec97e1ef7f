// courtmere-cli standings: a conference's standings (the user's, as the
// standings screen opens), or the nation's.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/head_coach.h"
#include "league/standings.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

std::string Count(int n) {
  return std::to_string(n);
}

void PrintTable(const StandingsTable& t, bool national) {
  TextTable table;
  table.AddColumn("Team", "Name", TextTable::kLeft);
  if (national) table.AddColumn("", "Conference", TextTable::kLeft);
  for (const auto& [top, bottom] : {std::pair{"Conf", "Wins"},
                                    {"Conf", "Losses"},
                                    {"Overall", "Wins"},
                                    {"Overall", "Losses"},
                                    {"Win", "Pct."},
                                    {"Home", "Wins"},
                                    {"Home", "Losses"},
                                    {"Away", "Wins"},
                                    {"Away", "Losses"}}) {
    table.AddColumn(top, bottom, TextTable::kRight);
  }
  for (const StandingsRow& r : t.Rows) {
    std::vector<std::string> cells = {r.SchoolName};
    if (national) cells.push_back(r.Conference);
    for (const std::string& cell :
         {Count(r.ConfWins), Count(r.ConfLosses), Count(r.TotalWins), Count(r.TotalLosses),
          WinPctText(r.WinPercent), Count(r.HomeWins), Count(r.HomeLosses), Count(r.AwayWins),
          Count(r.AwayLosses)}) {
      cells.push_back(cell);
    }
    table.AddRow(std::move(cells));
    if (r.User) table.MarkLastRow('*');
  }
  if (!t.Division.empty()) fmt::print("{}\n", t.Division);
  fmt::print("{}", table.Render());
}

struct StandingsOptions {
  std::string conference;  // empty: the user's
  bool national = false;
};

void RunStandings(CliContext& context, const StandingsOptions& o) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  Store& store = session.Db();
  const bool national = o.national;
  const std::string conference = o.conference.empty() ? HumanConference(store) : o.conference;
  if (!national) RequireConference(session, conference);
  const Standings s = national ? NationalStandings(store) : ConferenceStandings(store, conference);
  const Config& c = session.config;
  fmt::print("{}: week {}, {}, {}, stage {}\n", s.Title, c.CurrWeek, c.CurrDay, c.CurrYear,
             c.Stage);
  for (const StandingsTable& table : s.Tables) {
    fmt::print("\n");
    PrintTable(table, national);
  }
  fmt::print("\n* your school\n");
}

}  // namespace

void AddStandingsCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<StandingsOptions>();
  CLI::App* cmd =
      app.add_subcommand("standings", "Show a conference's standings, or the national ones");
  CLI::Option* conference =
      cmd->add_option("--conference", options->conference, "The conference (default: your own)");
  cmd->add_flag("--national", options->national, "Every school of the nation in one table")
      ->excludes(conference);
  cmd->callback([&context, options] { RunStandings(context, *options); });
}

}  // namespace courtmere::cli
