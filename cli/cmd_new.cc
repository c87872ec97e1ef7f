// courtmere-cli new: File > New from start to end, answering Yes to its
// questions, then a summary of the dynasty.
#include <fmt/format.h>

#include "cli_context.h"
#include "league/prestige_bands.h"
#include "screens/new_dynasty_run.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct NewOptions {
  std::string conferences;
  std::string school;
  std::string coach = "Head Coach";
  std::string prestige = "default";
};

// "A; B ;C" gives "A", "B", "C".
std::vector<std::string> SplitList(const std::string& text) {
  std::vector<std::string> items;
  size_t start = 0;
  for (;;) {
    const size_t end = text.find(';', start);
    std::string item = text.substr(start, end == std::string::npos ? end : end - start);
    const size_t first = item.find_first_not_of(' ');
    const size_t last = item.find_last_not_of(' ');
    items.push_back(first == std::string::npos ? "" : item.substr(first, last - first + 1));
    if (end == std::string::npos) return items;
    start = end + 1;
  }
}

void PrintConferences(Store& store) {
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  table.AddColumn("Conference", "", TextTable::kLeft);
  table.AddColumn("Schools", "", TextTable::kRight);
  for (Rows rows =
           store.Query("SELECT Id, Conference, (SELECT count(*) FROM Team WHERE Team.Conference = "
                       "League.Conference) FROM League ORDER BY Id");
       rows.Next();) {
    table.AddRow({rows.Text(0), rows.Text(1), rows.Text(2)});
  }
  fmt::print("{}", table.Render());
}

void PrintSummary(Session& session, const NewOptions& options) {
  Store& store = session.Db();
  PrintConferences(store);
  const double prestige =
      store.ScalarDouble("SELECT InitialPrestige FROM Team WHERE SchoolName = ?", options.school)
          .value_or(0);
  const PrestigeBand& band = BandOf(prestige);
  TextTable facts;
  facts.AddColumn("", "", TextTable::kLeft);
  facts.AddColumn("", "", TextTable::kLeft);
  facts.AddRow({"First-division teams", std::to_string(store.RowCount("Team"))});
  facts.AddRow({"Background teams", std::to_string(store.RowCount("ScrubTeam"))});
  facts.AddRow({"Players", std::to_string(store.RowCount("Player"))});
  facts.AddRow({"Background players", std::to_string(store.RowCount("ScrubPlayer"))});
  facts.AddRow({"Your school", options.school});
  facts.AddRow({"Head coach", store.ScalarText("SELECT Name FROM HeadCoach").value_or("")});
  facts.AddRow({"Prestige", fmt::format("{} ({:.0f})", band.Label, prestige)});
  facts.AddRow({"Expectations", band.Expectation});
  const Config& c = session.config;
  facts.AddRow({"Calendar", fmt::format("week {}, {}, {}", c.CurrWeek, c.CurrDay, c.CurrYear)});
  facts.AddRow({"Stage", c.Stage});
  fmt::print("\n{}", facts.Render());
}

void RunNew(CliContext& context, const NewOptions& options) {
  // The new dynasty takes --seed as its own seed.
  Session& session = context.StartSession(CliContext::SeedFrom::kOption);
  NewDynastyRequest request;
  request.conferences = SplitList(options.conferences);
  request.school = options.school;
  request.coach = options.coach;
  request.randomPrestige = options.prestige == "random";
  if (!RunNewDynasty(session, request)) throw Refusal{};
  PrintSummary(session, options);
}

}  // namespace

void AddNewCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<NewOptions>();
  CLI::App* cmd =
      app.add_subcommand("new", "Start a new dynasty (File > New), answering Yes to its questions");
  cmd->add_option("--conferences", options->conferences,
                  "The three low conferences to add, separated by ';'")
      ->required();
  cmd->add_option("--school", options->school, "The school to coach")->required();
  cmd->add_option("--coach", options->coach, "Your name (default \"Head Coach\")");
  cmd->add_option("--prestige", options->prestige,
                  "default: the schools' own prestige; random: rotate it over the schools")
      ->check(CLI::IsMember({"default", "random"}));
  cmd->callback([&context, options] { RunNew(context, *options); });
}

}  // namespace courtmere::cli
