// courtmere-cli recruiting: the user's board as the team recruiting screen
// shows it, with the period, the points left and the scholarships on top.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/recruit_board.h"
#include "store/menu_gate.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

const char* ColourName(RecruitRowColour colour) {
  switch (colour) {
    case RecruitRowColour::kBlue:
      return "NBA";
    case RecruitRowColour::kGreen:
      return "JC";
    case RecruitRowColour::kRed:
      return "Ineligible";
    case RecruitRowColour::kPlain:
      break;
  }
  return "";
}

void RunRecruiting(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  MenuGate(session);
  // Each command is a new run: the period is the calendar's, as after a load.
  const RecruitBoard board = LoadRecruitBoard(session, PeriodAfterLoad(session.config));
  fmt::print("{}, week {}: {}\n", board.Title, board.Week,
             board.PeriodText.empty() ? "no recruiting period" : board.PeriodText);
  fmt::print("Points left this week: {}\n", board.PointsAvail);
  fmt::print("Scholarships: {} offered of {}\n", board.Offered, board.Allowance);
  std::string actions;
  for (const std::string& a : board.Actions) actions += (actions.empty() ? "" : ", ") + a;
  fmt::print("Actions: {}\n\n", actions.empty() ? "none" : actions);
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  for (const char* column : kRecruitBoardColumns) {
    const std::string_view name = column;
    const bool text = name == "Name" || name == "Pos" || name == "Decision";
    table.AddColumn(name == "Top Bid" ? board.TopBidHeading : column, "",
                    text ? TextTable::kLeft : TextTable::kRight);
  }
  table.AddColumn("", "", TextTable::kLeft);
  for (const RecruitBoardRow& r : board.Rows) {
    table.AddRow({std::to_string(r.PlayerID), r.Name, r.Pos, std::to_string(r.Calls),
                  std::to_string(r.Assistant), std::to_string(r.Visits),
                  std::to_string(r.CampusVisits), r.Decision, std::to_string(r.Points), r.TopBid,
                  r.Scholarship ? "Yes" : "No", r.Rank > 0 ? std::to_string(r.Rank) : "",
                  ColourName(r.Colour)});
  }
  if (board.Rows.empty()) {
    fmt::print("No recruits on your list yet: add them with recruit add ID.\n");
  } else {
    fmt::print("{}", table.Render());
  }
}

}  // namespace

void AddRecruitingCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd =
      app.add_subcommand("recruiting", "Show your recruiting board: period, points, scholarships");
  cmd->callback([&context] { RunRecruiting(context); });
}

}  // namespace courtmere::cli
