// courtmere-cli recruits: the recruit pool as its screens list it, with the
// scouts' grades (never the hidden ratings) and "99" for an unranked man.
#include <fmt/format.h>

#include <optional>

#include "cli_context.h"
#include "screens/recruit_lists.h"
#include "store/menu_gate.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct RecruitsOptions {
  std::string region;
  std::string position;
  bool top50 = false;
  bool interested = false;
};

void PrintList(const RecruitList& list) {
  fmt::print("{}\n", list.Title);
  TextTable table;
  for (const char* column : kRecruitListColumns) {
    const std::string_view name = column;
    const bool number = name == "Id" || name == "Pos Rank" || name == "Top 50";
    table.AddColumn(column, "", number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const RecruitListRow& r : list.Rows) {
    std::vector<std::string> cells = {std::to_string(r.Id),
                                      r.Name,
                                      r.Pos,
                                      r.Height,
                                      r.HomeTown,
                                      r.RecruitType,
                                      std::to_string(r.PosRank),
                                      std::to_string(r.Top50Rank)};
    cells.insert(cells.end(), r.Grades.begin(), r.Grades.end());
    cells.push_back(r.Schools);
    cells.push_back(r.Status);
    table.AddRow(std::move(cells));
    if (r.Listed) table.MarkLastRow('*');
  }
  fmt::print("{}{} recruit(s); * on your list\n\n", table.Render(), list.Rows.size());
}

std::optional<int> PositionNumber(const std::string& text) {
  constexpr const char* kShort[] = {"PG", "SG", "SF", "PF", "C"};
  for (int p = 1; p <= 5; ++p) {
    if (text == kShort[p - 1] || text == std::to_string(p)) return p;
  }
  return std::nullopt;
}

void Refuse(Session& session, const std::string& message) {
  session.ui.Message(message);
  throw Refusal{};
}

void RunRecruits(CliContext& context, const RecruitsOptions& o) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  MenuGate(session);
  if (!o.region.empty()) {
    bool known = false;
    for (const char* region : kRecruitRegions) known = known || o.region == region;
    if (!known) Refuse(session, "The region must be one of East, Midwest, South or West.");
    PrintList(RegionRecruits(session, o.region));
  } else if (!o.position.empty()) {
    const std::optional<int> position = PositionNumber(o.position);
    if (!position) Refuse(session, "The position must be one of PG, SG, SF, PF or C.");
    PrintList(PositionRecruits(session, *position));
  } else if (o.interested) {
    for (int slot = 1; slot <= 3; ++slot) PrintList(InterestedRecruits(session, slot));
  } else {
    // Design decision: with no list named, the national top 50.
    PrintList(Top50Recruits(session));
  }
}

}  // namespace

void AddRecruitsCommand(CLI::App& app, CliContext& context) {
  auto o = std::make_shared<RecruitsOptions>();
  CLI::App* cmd =
      app.add_subcommand("recruits",
                         "List the recruit pool: a region, a position, the top 50 (the default) or "
                         "those interested in your school");
  CLI::Option* region = cmd->add_option("--region", o->region, "East, Midwest, South or West");
  CLI::Option* position =
      cmd->add_option("--position", o->position, "The magazine's rank at PG, SG, SF, PF or C");
  CLI::Option* top50 = cmd->add_flag("--top50", o->top50, "The top 50 recruits in the nation");
  CLI::Option* interested = cmd->add_flag(
      "--interested", o->interested, "The recruits naming your school as Team1, Team2 or Team3");
  region->excludes(position)->excludes(top50)->excludes(interested);
  position->excludes(top50)->excludes(interested);
  top50->excludes(interested);
  cmd->callback([&context, o] { RunRecruits(context, *o); });
}

}  // namespace courtmere::cli
