// courtmere-cli bracket conf [C] | nct | act | pre NAME: a tournament's
// bracket round by round, with the scores of played games, the winners
// marked and the champion once known.
#include <fmt/format.h>

#include <algorithm>

#include "cli_context.h"
#include "league/head_coach.h"
#include "schedule/preseason_tournaments.h"
#include "screens/bracket_view.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

std::string SeedText(const BracketSide& side) {
  return side.seed > 0 ? std::to_string(side.seed) : std::string();
}

std::string TeamText(const BracketSide& side) {
  if (!side.pairing.empty()) return "winner of " + side.pairing;
  if (side.school.empty()) return "-";
  return side.bold ? side.school + " *" : side.school;
}

std::string ScoreText(const BracketSide& side) {
  return side.points > 0 ? std::to_string(side.points) : std::string();
}

void PrintRound(const BracketRound& round) {
  fmt::print("\n{} ({})\n", round.title, round.when);
  TextTable table;
  for (const char* heading : {"Seed", "Home", "Score", "Seed", "Away", "Score"}) {
    const bool number = std::string_view(heading) != "Home" && std::string_view(heading) != "Away";
    table.AddColumn(heading, "", number ? TextTable::kRight : TextTable::kLeft);
  }
  const bool sites = std::any_of(round.games.begin(), round.games.end(),
                                 [](const BracketMatch& m) { return !m.site.empty(); });
  if (sites) table.AddColumn("Site", "", TextTable::kLeft);
  for (const BracketMatch& m : round.games) {
    table.AddRow({SeedText(m.home), TeamText(m.home), ScoreText(m.home), SeedText(m.away),
                  TeamText(m.away), ScoreText(m.away), m.site});
  }
  fmt::print("{}", table.Render());
}

void PrintBracket(const BracketView& view) {
  fmt::print("{}\n", view.title);
  if (!view.subtitle.empty()) fmt::print("{}\n", view.subtitle);
  for (const BracketSection& section : view.sections) {
    if (!section.title.empty()) fmt::print("\n== {} ==\n", section.title);
    for (const BracketRound& round : section.rounds) PrintRound(round);
  }
  fmt::print("\n* won the game\n");
  if (!view.champion.empty()) fmt::print("Champion: {}\n", view.champion);
}

// Prints the bracket, or refuses with `missing` when it has not been drawn.
void Show(Session& session, const BracketView& view, const std::string& missing) {
  if (view.sections.empty()) {
    session.ui.Message(missing);
    throw Refusal{};
  }
  PrintBracket(view);
}

void RunConf(CliContext& context, std::string conference) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  if (conference.empty()) conference = HumanConference(session.Db());
  RequireConference(session, conference);
  Show(session, ConfBracketView(session.Db(), conference),
       fmt::format("The {} Conference Tournament has not been set up yet: it is drawn at the end "
                   "of week 15.",
                   conference));
}

void RunNational(CliContext& context, bool nct) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const char* name = nct ? "NCT" : "ACT";
  Show(session, nct ? NctBracketView(session.Db()) : ActBracketView(session.Db()),
       fmt::format("The {} field has not been selected yet: it is chosen on the Sunday of week 16.",
                   name));
}

void RunPreseason(CliContext& context, const std::string& tournament) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const bool known = std::any_of(kPreseasonFields.begin(), kPreseasonFields.end(),
                                 [&](const PreseasonField& f) { return f.name == tournament; });
  if (!known) {
    session.ui.Message(fmt::format(
        "There is no preseason tournament named {}. The tournaments are Hawaii Classic, Alaska "
        "Challenge and Preseason ACT.",
        tournament));
    throw Refusal{};
  }
  Show(session, PreseasonBracketView(session.Db(), tournament),
       fmt::format("The {} has no field this season.", tournament));
}

}  // namespace

void AddBracketCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("bracket", "Show a tournament's bracket");
  cmd->require_subcommand(1);

  auto conference = std::make_shared<std::string>();
  CLI::App* conf = cmd->add_subcommand("conf", "A conference tournament (default: your own)");
  conf->add_option("conference", *conference, "The conference");
  conf->callback([&context, conference] { RunConf(context, *conference); });

  cmd->add_subcommand("nct", "The NCT")->callback([&context] { RunNational(context, true); });
  cmd->add_subcommand("act", "The ACT")->callback([&context] { RunNational(context, false); });

  auto tournament = std::make_shared<std::string>();
  CLI::App* pre = cmd->add_subcommand("pre", "A preseason tournament of week 1");
  pre->add_option("name", *tournament, "Hawaii Classic, Alaska Challenge or Preseason ACT")
      ->required();
  pre->callback([&context, tournament] { RunPreseason(context, *tournament); });
}

}  // namespace courtmere::cli
