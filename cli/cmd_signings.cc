// courtmere-cli signings, test-scores and classes: the recruits who have
// chosen their schools, the academic test's scores, and the recruiting
// classes by their points.
#include <fmt/format.h>

#include "cli_context.h"
#include "recruiting/test_scores.h"
#include "screens/recruit_signings.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

std::string Rank(int rank) {
  return rank > 0 ? std::to_string(rank) : "";
}

void PrintSignings(CliContext& context, const std::string& school) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  Store& store = session.Db();
  if (!school.empty() &&
      !store.ScalarInt("SELECT 1 FROM Team WHERE SchoolName = ?", school).has_value()) {
    session.ui.Message(fmt::format("There is no school named {} in this dynasty.", school));
    throw Refusal{};
  }
  const std::vector<SigningRow> rows = RecruitSignings(store, school);
  if (rows.empty()) {
    session.ui.Message(school.empty() ? std::string("No recruit has chosen a school yet.")
                                      : fmt::format("No recruit has chosen {} yet.", school));
    throw Refusal{};
  }
  fmt::print("{}\n", kSigningsTitle);
  TextTable table;
  for (const char* heading : {"Name", "Height", "Pos.", "Hometown", "HighSchool", "Choice"}) {
    table.AddColumn(heading, "", TextTable::kLeft);
  }
  table.AddColumn("Pos Rank", "", TextTable::kRight);
  table.AddColumn("Top 50", "", TextTable::kRight);
  for (const SigningRow& r : rows) {
    table.AddRow({r.Name, r.Height, r.Position, r.HomeTown, r.HighSchool, r.Choice, Rank(r.PosRank),
                  Rank(r.Top50Rank)});
    if (r.Choice == session.humanSchool) table.MarkLastRow('*');
  }
  fmt::print("{}", table.Render());
}

void PrintTestScores(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const std::vector<TestScoreRow> rows = RecruitTestScores(session);
  if (rows.empty()) {
    session.ui.Message("No recruit has taken the test yet: it is given at the end of week 10.");
    throw Refusal{};
  }
  fmt::print("{}\n", kTestScoresTitle);
  TextTable table;
  table.AddColumn("Name", "", TextTable::kLeft);
  table.AddColumn("Score", "", TextTable::kRight);
  table.AddColumn("Pass/Fail", "", TextTable::kLeft);
  for (const TestScoreRow& r : rows) table.AddRow({r.Name, std::to_string(r.Score), r.Result});
  fmt::print("{}", table.Render());
}

void PrintClasses(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  fmt::print("Recruiting classes\n");
  TextTable table;
  table.AddColumn("Rank", "", TextTable::kRight);
  table.AddColumn("School", "", TextTable::kLeft);
  table.AddColumn("Freshmen", "", TextTable::kRight);
  table.AddColumn("ClassPoints", "", TextTable::kRight);
  for (const ClassRow& r : RecruitingClasses(session.Db())) {
    table.AddRow(
        {Rank(r.Rank), r.School, std::to_string(r.Freshmen), fmt::format("{:.2f}", r.Points)});
    if (r.User) table.MarkLastRow('*');
  }
  fmt::print("{}* your school\n", table.Render());
}

}  // namespace

void AddSigningsCommands(CLI::App& app, CliContext& context) {
  auto school = std::make_shared<std::string>();
  CLI::App* signings =
      app.add_subcommand("signings", "The national recruit signings (News > Recruit Signings)");
  signings->add_option("--school", *school, "One school's signings only");
  signings->callback([&context, school] { PrintSignings(context, *school); });
  app.add_subcommand("test-scores",
                     "The recruits' academic test scores (News > Recruit Test Scores)")
      ->callback([&context] { PrintTestScores(context); });
  app.add_subcommand("classes", "The recruiting classes ranked by their points")
      ->callback([&context] { PrintClasses(context); });
}

}  // namespace courtmere::cli
