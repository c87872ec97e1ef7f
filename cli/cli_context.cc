#include "cli_context.h"

#include <algorithm>

#include "league/head_coach.h"
#include "league/standings.h"
#include "store/dynasty_seed.h"
#include "store/store_files.h"

namespace courtmere::cli {

Session& CliContext::StartSession(SeedFrom seedFrom) {
  ProgramFolder folder(home.empty() ? ProgramFolder::DefaultRoot() : std::filesystem::path(home));
  session = std::make_unique<Session>(std::move(folder), Rng::FromOption(seed), ui);
  StartUp(*session);
  if (seedFrom == SeedFrom::kDynasty) SeedForPlace(*session, "command");
  return *session;
}

std::string RequireDynasty(Session& session) {
  Store& store = session.Db();
  const std::string school = HumanSchool(store);
  if (school.empty() ||
      !store.ScalarInt("SELECT count(*) FROM Team WHERE SchoolName = ?", school).value_or(0)) {
    session.ui.Message(
        "There is no dynasty in this program folder. Start one with the command new.");
    throw Refusal{};
  }
  return school;
}

void RequireConference(Session& session, const std::string& conference) {
  const std::vector<std::string> names = StandingsConferences(session.Db());
  if (std::find(names.begin(), names.end(), conference) == names.end()) {
    session.ui.Message("League not found");
    throw Refusal{};
  }
}

}  // namespace courtmere::cli
