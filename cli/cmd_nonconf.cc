// courtmere-cli nonconf: the user's non-conference schedule screen. "show"
// lists the games of one view with the schools each may take instead of its
// present opponent; "set" submits new opponents, answering Yes to the
// question.
#include <fmt/format.h>

#include <map>
#include <optional>

#include "cli_context.h"
#include "screens/nonconf_screen.h"
#include "screens/nonconf_submit.h"
#include "store/config.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct NonConfOptions {
  std::string view = "pre";        // show
  std::vector<std::string> pairs;  // set: GAMENO SCHOOL ...
};

NonConfScreen Show(Session& session, const std::string& school, NonConfView view) {
  return view == NonConfView::kPreConference ? ShowPreConferenceGames(session, school)
                                             : ShowOtherGames(session, school);
}

std::string Describe(const NonConfRow& row) {
  const std::string day = row.Heading.empty()
                              ? fmt::format("week {}, {}", row.Week, row.GameDay)
                              : fmt::format("{}, {}", row.Heading.substr(1), row.GameDay);
  return fmt::format("Game {}, {}, {} {}{}", row.GameNo, day,
                     row.UserAtHome ? "home to" : "away at", row.Opponent,
                     row.GameType == "NonConference" ? "" : " (" + row.GameType + ")");
}

void PrintScreen(const NonConfScreen& screen) {
  fmt::print("{}\n", screen.Title);
  if (screen.Rows.empty()) {
    fmt::print("{}\n", kNoGames);
    return;
  }
  for (const NonConfRow& row : screen.Rows) {
    fmt::print("\n{}\n", Describe(row));
    if (!row.Offered()) {
      fmt::print("  not offered for change\n");
      continue;
    }
    TextTable table;
    table.AddColumn("School", "", TextTable::kLeft);
    table.AddColumn("Conference", "", TextTable::kLeft);
    table.AddColumn("Prestige", "", TextTable::kLeft);
    for (size_t i = 0; i < row.Choices.size(); ++i) {
      const NonConfChoice& c = row.Choices[i];
      table.AddRow({c.School, c.Conference, c.Prestige});
      if (i == 0) table.MarkLastRow('*');  // the present opponent
    }
    fmt::print("{}", table.Render());
  }
}

NonConfView ViewOf(Session& session, const std::string& view) {
  if (view == "pre") return NonConfView::kPreConference;
  if (view == "other") return NonConfView::kOther;
  session.ui.Message("The view is pre (the games before week 5) or other (those after it).");
  throw Refusal{};
}

void RunShow(CliContext& context, const NonConfOptions& options) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  PrintScreen(Show(session, school, ViewOf(session, options.view)));
}

// The new opponents by game number, or a refusal.
std::map<int, std::string> ReadPairs(Session& session, const std::vector<std::string>& pairs) {
  if (pairs.empty() || pairs.size() % 2 != 0) {
    session.ui.Message("Name each game by its number, followed by the school to play in it.");
    throw Refusal{};
  }
  std::map<int, std::string> chosen;
  for (size_t i = 0; i < pairs.size(); i += 2) {
    const std::string& text = pairs[i];
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos ||
        text.size() > 9) {
      session.ui.Message(fmt::format("{} is not a game number.", text));
      throw Refusal{};
    }
    chosen[std::stoi(text)] = pairs[i + 1];
  }
  return chosen;
}

// The view that holds the games named: all before week 5 or all after it.
NonConfView ViewOfGames(Session& session, const std::string& school,
                        const std::map<int, std::string>& chosen) {
  std::optional<NonConfView> view;
  for (const auto& [gameNo, opponent] : chosen) {
    const std::optional<int64_t> week = session.Db().ScalarInt(
        "SELECT Week FROM NonConfSchedule WHERE GameNo = ? AND (HomeTeam = ? OR AwayTeam = ?)",
        gameNo, school, school);
    if (!week) {
      session.ui.Message(fmt::format("Game {} is not one of your non-conference games.", gameNo));
      throw Refusal{};
    }
    const NonConfView v = *week < 5 ? NonConfView::kPreConference : NonConfView::kOther;
    if (view && *view != v) {
      session.ui.Message(
          "Name games of one view at a time: your non-conference games before week 5, or "
          "those after it.");
      throw Refusal{};
    }
    view = v;
  }
  return *view;
}

// The row of the game numbered `gameNo`, or a refusal.
size_t RowOf(Session& session, const NonConfScreen& screen, int gameNo) {
  for (size_t i = 0; i < screen.Rows.size(); ++i) {
    if (screen.Rows[i].GameNo == gameNo && screen.Rows[i].Offered()) return i;
  }
  session.ui.Message(fmt::format("Game {} is not offered for change.", gameNo));
  throw Refusal{};
}

void RunSet(CliContext& context, const NonConfOptions& options) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  const std::map<int, std::string> chosen = ReadPairs(session, options.pairs);
  // The desktop offers the screen only in the offseason; the tool says so.
  if (session.config.Stage != kStagePostTraining) {
    session.ui.Message(fmt::format(
        "The non-conference schedule can only be changed in the stage Post Training; the "
        "dynasty stands in {}.",
        session.config.Stage));
    throw Refusal{};
  }
  const NonConfScreen screen = Show(session, school, ViewOfGames(session, school, chosen));
  std::vector<std::string> choices;
  for (const NonConfRow& row : screen.Rows) choices.push_back(row.Opponent);
  for (const auto& [gameNo, opponent] : chosen) {
    const size_t row = RowOf(session, screen, gameNo);
    if (!ChoiceOffered(session, screen, row, opponent)) {
      session.ui.Message(fmt::format("{} cannot be scheduled in game {}.", opponent, gameNo));
      throw Refusal{};
    }
    choices[row] = opponent;
  }
  if (!SubmitGames(session, screen, choices)) throw Refusal{};
}

}  // namespace

void AddNonConfCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<NonConfOptions>();
  CLI::App* cmd = app.add_subcommand(
      "nonconf", "The user's non-conference schedule (Off Season > Set NonConference Schedule)");
  cmd->require_subcommand(1);
  CLI::App* show = cmd->add_subcommand(
      "show", "List your games of one view and the schools each may take instead");
  show->add_option("--view", options->view,
                   "pre: the games before week 5 (default); other: the games after it");
  show->callback([&context, options] { RunShow(context, *options); });
  CLI::App* set = cmd->add_subcommand(
      "set",
      "Give games new opponents: GAMENO SCHOOL [GAMENO SCHOOL ...], all before week 5 or all "
      "after it");
  set->add_option("pairs", options->pairs, "Game numbers, each followed by its new opponent")
      ->required();
  set->callback([&context, options] { RunSet(context, *options); });
}

}  // namespace courtmere::cli
