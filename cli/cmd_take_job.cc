// courtmere-cli take-job SCHOOL: Apply on the job list for one of its
// schools, answering Yes to the question.
#include <fmt/format.h>

#include <algorithm>

#include "career/job_list.h"
#include "career/take_job.h"
#include "cli_context.h"

namespace courtmere::cli {

namespace {

void RunTakeJob(CliContext& context, const std::string& school) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  if (const auto closed = JobListClosed(session)) Refuse(*closed);
  const std::vector<JobOffer> offers = LoadJobList(session.Db());
  const auto offer = std::find_if(offers.begin(), offers.end(),
                                  [&school](const JobOffer& o) { return o.School == school; });
  if (offer == offers.end()) Refuse(fmt::format("{} has no opening for you.", school));
  if (!TakeJob(session, *offer)) throw Refusal{};
  fmt::print("Head coach of {} ({}: {})\n", session.humanSchool, offer->Prestige,
             offer->Expectation);
}

}  // namespace

void AddTakeJobCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("take-job", "Take the head-coach job at a school that offers");
  auto school = std::make_shared<std::string>();
  cmd->add_option("school", *school, "The school, as the job list names it")->required();
  cmd->callback([&context, school] { RunTakeJob(context, *school); });
}

}  // namespace courtmere::cli
