// courtmere-cli records: a record book, of a season's marks or of careers,
// for the nation, a school or a conference.
#include <fmt/format.h>

#include <algorithm>

#include "cli_context.h"
#include "screens/record_list.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct RecordsOptions {
  bool season = false;
  bool career = false;
  std::string school;
  std::string conference;
  bool national = false;
};

std::string ChosenBook(Session& session, const RecordsOptions& o) {
  if (!o.school.empty()) {
    const std::vector<std::string> schools = RecordBookSchools(session.Db());
    if (std::find(schools.begin(), schools.end(), o.school) == schools.end()) {
      Refuse(fmt::format("There is no school named {} in this dynasty.", o.school));
    }
    return o.school;
  }
  if (!o.conference.empty()) {
    RequireConference(session, o.conference);
    return o.conference;
  }
  return "National";
}

void RunRecords(CliContext& context, const RecordsOptions& o) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  const std::string book = ChosenBook(session, o);
  const std::vector<RecordRow> rows = RecordList(session.Db(), book, o.career);
  fmt::print("{} {} records\n", book, o.career ? "Career" : "Season");
  if (rows.empty()) {
    fmt::print("No records have been set yet.\n");
    return;
  }
  TextTable table;
  for (const char* column : kRecordColumns) {
    const bool number = std::string_view(column) == "Value";
    table.AddColumn("", column, number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const RecordRow& r : rows) table.AddRow({r.record, r.value, r.player, r.year, r.team});
  fmt::print("{}", table.Render());
}

}  // namespace

void AddRecordsCommand(CLI::App& app, CliContext& context) {
  auto o = std::make_shared<RecordsOptions>();
  CLI::App* cmd = app.add_subcommand(
      "records", "A record book: the season's or the careers' best marks, with holder, year, team");
  auto* season = cmd->add_flag("--season", o->season, "Marks of a season (the default)");
  cmd->add_flag("--career", o->career, "Marks of a career")->excludes(season);
  auto* school = cmd->add_option("--school", o->school, "The book of a school");
  auto* conference =
      cmd->add_option("--conference", o->conference, "The book of a conference")->excludes(school);
  cmd->add_flag("--national", o->national, "The national book (the default)")
      ->excludes(school)
      ->excludes(conference);
  cmd->callback([&context, o] { RunRecords(context, *o); });
}

}  // namespace courtmere::cli
