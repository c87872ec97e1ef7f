#include "season_command.h"

#include <fmt/format.h>

#include "season/season_session.h"
#include "store/season_stats.h"

namespace courtmere::cli {

std::unique_ptr<SeasonRun> ResumeSeasonRun(CliContext& context) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  ResumeSeason(session);
  auto run = std::make_unique<SeasonRun>(session);
  run->recruiting = &context.recruiting;
  run->history = &context.history;
  run->keepWithDay = [](Session& s) { SaveSeasonStats(s); };
  return run;
}

void RequireSeasonStage(Session& session) {
  const Config& c = session.config;
  if (c.Stage == kStageSeason) return;
  session.ui.Message(fmt::format(
      "Games can only be played in the stage Season; the dynasty stands in {} (week {}).", c.Stage,
      c.CurrWeek));
  throw Refusal{};
}

std::string PollTopFive(Store& store) {
  std::string line;
  for (Rows r = store.Query(
           "SELECT TeamRanking, SchoolName FROM Ranking WHERE TeamRanking BETWEEN 1 AND 5 ORDER "
           "BY TeamRanking");
       r.Next();) {
    if (!line.empty()) line += ", ";
    line += fmt::format("{}. {}", r.Int(0), r.Text(1));
  }
  return line;
}

}  // namespace courtmere::cli
