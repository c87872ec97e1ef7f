// courtmere-cli history: a school's seasons year by year, its all-time
// totals and its alumni.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/display_format.h"
#include "screens/school_history.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void PrintSeasons(const SchoolHistory& h) {
  if (h.seasons.empty()) {
    fmt::print("No season has ended yet.\n");
    return;
  }
  TextTable table;
  for (const char* c : {"Year", "W", "L", "Conf W", "Conf L", "Poll"}) {
    table.AddColumn("", c, TextTable::kRight);
  }
  for (const char* c : {"Conf Champ", "NCT W/L", "ACT W/L", "Season Summary"}) {
    table.AddColumn("", c, TextTable::kLeft);
  }
  for (const SchoolSeason& s : h.seasons) {
    table.AddRow({std::to_string(s.year), std::to_string(s.wins), std::to_string(s.losses),
                  std::to_string(s.confWins), std::to_string(s.confLosses),
                  s.pollRank > 0 ? std::to_string(s.pollRank) : "NR", s.confChamp ? "Yes" : "No",
                  s.nctRecord.empty() ? "NA" : s.nctRecord,
                  s.actRecord.empty() ? "NA" : s.actRecord, s.summary});
  }
  fmt::print("{}", table.Render());
}

void PrintTotals(const SchoolTotals& t) {
  fmt::print("\nAll-time: {}, {} conference titles\n", AllTimeRecord(t), t.confChamps);
  fmt::print("NCT: {} appearances, {}-{}, {} Final Fours, {} titles\n", t.nctApps, t.nctWins,
             t.nctLosses, t.nctFinalFours, t.nctChamps);
  fmt::print("ACT: {} appearances, {}-{}, {} Final Fours, {} titles\n", t.actApps, t.actWins,
             t.actLosses, t.actFinalFours, t.actChamps);
}

void PrintAlumni(const std::vector<Alumnus>& alumni) {
  if (alumni.empty()) return;
  fmt::print("\nAlumni\n");
  TextTable table;
  for (const char* c : {"Left", "Name", "Pos", "PPG", "RPG", "APG", "NBA Draft"}) {
    const bool number = std::string_view(c).ends_with("PG") || std::string_view(c) == "Left";
    table.AddColumn("", c, number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const Alumnus& a : alumni) {
    table.AddRow({std::to_string(a.yearLeft), a.name, a.position, FormatOneDecimal(a.ppg),
                  FormatOneDecimal(a.rpg), FormatOneDecimal(a.apg), a.draft});
  }
  fmt::print("{}", table.Render());
}

void RunHistory(CliContext& context, std::string school) {
  Session& session = context.StartSession();
  const std::string own = RequireDynasty(session);
  if (school.empty()) school = own;
  const SchoolHistory h = ReadSchoolHistory(session.Db(), school);
  if (h.school.empty()) Refuse(fmt::format("There is no school named {} in this dynasty.", school));
  fmt::print("{} history\n", h.school);
  PrintSeasons(h);
  PrintTotals(h.totals);
  PrintAlumni(h.alumni);
}

}  // namespace

void AddHistoryCommand(CLI::App& app, CliContext& context) {
  auto school = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand(
      "history", "A school's seasons year by year, its all-time totals and its alumni");
  cmd->add_option("--school", *school, "The school (your own when not given)");
  cmd->callback([&context, school] { RunHistory(context, *school); });
}

}  // namespace courtmere::cli
