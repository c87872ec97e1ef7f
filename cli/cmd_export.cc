// courtmere-cli export jsb|fbb|draft|stats|roster: writes a report into the
// program folder's "reports" folder and prints its path. A report that is
// closed in the dynasty's stage, or can't be written, is refused and
// nothing is written.
#include <fmt/format.h>

#include <map>

#include "cli_context.h"
#include "history/exports.h"

namespace courtmere::cli {

namespace {

const std::map<std::string, ReportKind> kKinds = {{"jsb", ReportKind::kJsb},
                                                  {"fbb", ReportKind::kFbb},
                                                  {"draft", ReportKind::kDraft},
                                                  {"stats", ReportKind::kStats},
                                                  {"roster", ReportKind::kRoster}};

struct ExportOptions {
  std::string kind;
  std::string school;
};

void RunExport(CliContext& context, const ExportOptions& o) {
  Session& session = context.StartSession();
  const std::string own = RequireDynasty(session);
  const ReportKind kind = kKinds.at(o.kind);
  if (const std::optional<std::string> closed = ReportClosed(session, kind)) Refuse(*closed);
  const std::string school = o.school.empty() ? own : o.school;
  if (!session.Db()
           .ScalarInt("SELECT count(*) FROM Team WHERE SchoolName = ?", school)
           .value_or(0)) {
    Refuse(fmt::format("There is no school named {} in this dynasty.", school));
  }
  try {
    const ReportWritten written = WriteReport(session, kind, school);
    fmt::print(stderr, "{}\n", written.message);
    fmt::print("{}\n", written.path.string());
  } catch (const ReportError& e) {
    Refuse(e.what());
  }
}

}  // namespace

void AddExportCommand(CLI::App& app, CliContext& context) {
  auto o = std::make_shared<ExportOptions>();
  CLI::App* cmd = app.add_subcommand(
      "export",
      "Writes a report into reports/: the JSB or FBB draft pool, the NBA Draft list, or a "
      "school's stats or roster");
  std::vector<std::string> names;
  for (const auto& [name, kind] : kKinds) names.push_back(name);
  cmd->add_option("report", o->kind, "jsb, fbb, draft, stats or roster")
      ->required()
      ->check(CLI::IsMember(names));
  cmd->add_option("--school", o->school, "The school of stats or roster (your own by default)");
  cmd->callback([&context, o] { RunExport(context, *o); });
}

}  // namespace courtmere::cli
