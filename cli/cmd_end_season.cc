// courtmere-cli end-season: Progress > End Season once the season is over,
// answering Yes: the season's figures are kept and the recruits choose their
// schools.
#include <fmt/format.h>

#include "cli_context.h"
#include "screens/recruit_signings.h"
#include "season/end_season.h"
#include "season_command.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

void RunEndSeason(CliContext& context) {
  std::unique_ptr<SeasonRun> run = ResumeSeasonRun(context);
  Session& session = run->session;
  if (EndSeason(*run) != SeasonEnd::kEnded) throw Refusal{};
  Store& store = session.Db();
  const int64_t signings = store
                               .ScalarInt(
                                   "SELECT count(*) FROM Recruit WHERE TeamChoice IS NOT NULL AND "
                                   "TeamChoice <> 'NBA'")
                               .value_or(0);
  fmt::print("Season ended; stage {}. {} recruits have chosen their schools.\n",
             session.config.Stage, signings);
  const std::vector<SigningRow> mine = RecruitSignings(store, session.humanSchool);
  fmt::print("Signed with {}: {}\n", session.humanSchool, mine.size());
  if (mine.empty()) return;
  TextTable table;
  for (const char* heading : {"Name", "Pos.", "Height", "Hometown"}) {
    table.AddColumn(heading, "", TextTable::kLeft);
  }
  for (const SigningRow& r : mine) table.AddRow({r.Name, r.Position, r.Height, r.HomeTown});
  fmt::print("{}", table.Render());
}

}  // namespace

void AddEndSeasonCommand(CLI::App& app, CliContext& context) {
  app.add_subcommand("end-season",
                     "End the season (Progress > End Season), answering Yes: the recruits sign")
      ->callback([&context] { RunEndSeason(context); });
}

}  // namespace courtmere::cli
