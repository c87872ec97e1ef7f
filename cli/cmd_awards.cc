// courtmere-cli awards: the players of the week, or the season's teams.
#include <fmt/format.h>

#include <optional>

#include "cli_context.h"
#include "screens/award_lists.h"
#include "screens/display_format.h"
#include "store/session.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct AwardsOptions {
  std::optional<int> week;
  bool season = false;
  std::string conference;  // with --season: that conference's teams only
};

// Prints the list; true when a row is the user's school's.
bool PrintList(const AwardList& list, const std::string& firstColumn) {
  fmt::print("{}\n", list.Title);
  TextTable table;
  table.AddColumn("", firstColumn, TextTable::kRight);
  table.AddColumn("", "Player", TextTable::kLeft);
  table.AddColumn("", "Team", TextTable::kLeft);
  table.AddColumn("", "Pos", TextTable::kLeft);
  for (const char* figure : {"PPG", "RPG", "APG", "SPG", "BPG", "TOPG"}) {
    table.AddColumn("", figure, TextTable::kRight);
  }
  bool marked = false;
  for (const AwardRow& r : list.Rows) {
    table.AddRow({std::to_string(r.WeekNo), r.Name, r.Team, r.Position, FormatOneDecimal(r.PPG),
                  FormatOneDecimal(r.RPG), FormatOneDecimal(r.APG), FormatOneDecimal(r.SPG),
                  FormatOneDecimal(r.BPG), FormatOneDecimal(r.TOPG)});
    if (r.User) table.MarkLastRow('*');
    marked = marked || r.User;
  }
  fmt::print("{}\n", table.Render());
  return marked;
}

bool PrintWeeks(Session& session, const std::string& school, std::optional<int> week) {
  const AwardList list = PlayersOfWeek(session.Db(), school, week.value_or(0));
  if (list.Rows.empty()) {
    session.ui.Message(week ? fmt::format("No Player of the Week was named in week {}.", *week)
                            : std::string("No Player of the Week has been named yet."));
    throw Refusal{};
  }
  return PrintList(list, "Week");
}

bool PrintSeason(Session& session, const std::string& school, const std::string& conference) {
  Store& store = session.Db();
  std::vector<AwardList> lists;
  if (!conference.empty()) {
    RequireConference(session, conference);
    lists = ConferenceAwards(store, school, conference);
  } else {
    for (Rows r = store.Query("SELECT Conference FROM League ORDER BY Id"); r.Next();) {
      for (AwardList& list : ConferenceAwards(store, school, r.Text(0))) {
        lists.push_back(std::move(list));
      }
    }
    for (AwardList& list : NationalAwards(store, school)) lists.push_back(std::move(list));
  }
  if (lists.empty()) {
    session.ui.Message("The season's honours are named at the end of week 15.");
    throw Refusal{};
  }
  bool marked = false;
  for (const AwardList& list : lists) {
    // A team's slot, or a player of the year's position.
    marked = PrintList(list, list.Rows.size() == 1 ? "Pos." : "Slot") || marked;
  }
  return marked;
}

void RunAwards(CliContext& context, const AwardsOptions& options) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const bool marked = options.season ? PrintSeason(session, school, options.conference)
                                     : PrintWeeks(session, school, options.week);
  if (marked) fmt::print("* your school\n");
}

}  // namespace

void AddAwardsCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<AwardsOptions>();
  CLI::App* cmd = app.add_subcommand(
      "awards", "Show the players of the week, or with --season the season's honours");
  CLI::Option* week = cmd->add_option("--week", options->week, "One week's player of the week");
  CLI::Option* season =
      cmd->add_flag("--season", options->season,
                    "The all-conference, freshman and All America teams and players of the year");
  cmd->add_option("--conference", options->conference,
                  "With --season: one conference's honours only")
      ->needs(season);
  week->excludes(season);
  cmd->callback([&context, options] { RunAwards(context, *options); });
}

}  // namespace courtmere::cli
