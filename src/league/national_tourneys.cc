#include "league/national_tourneys.h"

#include <fmt/format.h>

#include "league/act.h"
#include "league/head_coach.h"
#include "league/national_rounds.h"
#include "league/nct_selection.h"
#include "league/status.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kFirstWeek = 17;
constexpr int kLastWeek = 20;

// Where the selection left the user's school.
void TellUser(Session& session) {
  Store& store = session.Db();
  const std::string school = HumanSchool(store);
  Rows nct = store.Query(
      "SELECT Seed, Conference, HostCity FROM NCTTourney WHERE SchoolName = ? AND Seed <= 16",
      school);
  if (nct.Next()) {
    AddInboxMessage(session, "Assistant", "Made the NCT!",
                    fmt::format("It has been announced that we made the NCT! We will be the No "
                                "{} seed in the {} region. We better get travel plans ready "
                                "for {}.",
                                nct.Int(0), nct.Text(1), nct.Text(2)));
    return;
  }
  if (store.ScalarInt("SELECT count(*) FROM ACTTourney WHERE SchoolName = ?", school).value_or(0) >
      0) {
    AddInboxMessage(session, "Assistant", "Made the ACT.",
                    "The bad news is we didn't make the NCT. The good news is we made the ACT. "
                    "So, let's get ready for a run to be the 65th best team in the nation!");
  }
}

}  // namespace

void SetupNationalTourneys(Session& session) {
  Store::Transaction tx(session.Db());
  ShowStatus(session, "Setting up NCT");
  const bool nct = SetupNct(session);
  ShowStatus(session, "Setting up ACT");
  const bool act = SetupAct(session);
  // A selection made before has told the user already.
  if (nct || act) TellUser(session);
  tx.Commit();
}

void RecordPostseasonDay(Session& session, int week, const std::string& day) {
  if (week < kFirstWeek || week > kLastWeek) return;
  ShowStatus(session, week == kLastWeek ? "Finalizing NCT" : "Setting up next round");
  Store::Transaction tx(session.Db());
  RecordNationalDay(session, Nct(), week, day);
  RecordNationalDay(session, Act(), week, day);
  tx.Commit();
}

std::optional<std::string> NctChampion(Store& store) {
  return NationalChampion(store, Nct());
}

}  // namespace courtmere
