// courtmere-cli jobs: the schools that will have the user as their coach
// (Progress > Check Job Openings), open between the draft and the start of
// the offseason.
#include <fmt/format.h>

#include "career/job_list.h"
#include "cli_context.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunJobs(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  if (const auto closed = JobListClosed(session)) Refuse(*closed);
  const std::vector<JobOffer> offers = LoadJobList(session.Db());
  if (offers.empty()) {
    fmt::print("No school has an opening for you.\n");
    return;
  }
  TextTable table;
  table.AddColumn("School", "", TextTable::kLeft);
  table.AddColumn("Win %", "", TextTable::kRight);
  table.AddColumn("Prestige", "", TextTable::kLeft);
  table.AddColumn("Expectations", "", TextTable::kLeft);
  for (const JobOffer& o : offers) table.AddRow({o.School, o.WinPct, o.Prestige, o.Expectation});
  fmt::print("{}", table.Render());
}

}  // namespace

void AddJobsCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("jobs", "The schools with an opening for the user");
  cmd->callback([&context] { RunJobs(context); });
}

}  // namespace courtmere::cli
