#include "career/take_job.h"

#include "career/career_row.h"
#include "career/job_list.h"
#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kScheduleFailure =
    "There was an error in the Apply Routine with the League Schedule. Please exit the game and "
    "contact ";
constexpr const char* kApplyFailure =
    "There was an error in the Apply Routine. Please exit the game and contact ";

struct Placement {
  std::string conference;
  std::string scheduleTable;
};

// Steps 2 to 4: the owners, the row's school and where the new school's
// conference keeps its games. Throws when the conference has no league.
Placement MoveOwnership(Store& store, const CareerRow& career, const std::string& school) {
  if (!career.Fired()) {
    store.Exec("UPDATE Team SET Owner = 'Computer' WHERE SchoolName = ?", career.Team);
  }
  store.Exec("UPDATE HeadCoach SET Team = ? WHERE Team = ?", school, career.Team);
  store.Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = ?", school);
  Placement p;
  p.conference =
      store.ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", school).value_or("");
  const auto league = store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", p.conference);
  if (!league) throw std::runtime_error("no league for the conference " + p.conference);
  p.scheduleTable = "League" + std::to_string(*league) + "Schedule";
  return p;
}

// Step 5: a fresh start at the new school.
void ResetCareer(Store& store, const CareerRow& career, int expectations, int year) {
  store.Exec(
      "UPDATE HeadCoach SET PrestigeChange = max(PrestigeChange, 0), Rating = max(Rating, 0), "
      "Strikes = 0, Expectations = ?, JobYear = ? WHERE Id = ?",
      expectations, year, career.Id);
}

}  // namespace

bool MoveToSchool(Session& session, const JobOffer& offer) {
  Store& store = session.Db();
  const CareerRow career = ReadCareer(store);
  Store::Transaction tx(store);
  Placement placement;
  try {
    placement = MoveOwnership(store, career, offer.School);
  } catch (const std::exception&) {
    session.ui.Message(std::string(kScheduleFailure) + std::string(kSupportContact));
    return false;
  }
  try {
    ResetCareer(store, career, offer.Expectations, session.config.CurrYear);
    tx.Commit();
  } catch (const std::exception&) {
    session.ui.Message(std::string(kApplyFailure) + std::string(kSupportContact));
    return false;
  }
  session.humanSchool = offer.School;
  session.humanConference = placement.conference;
  session.humanScheduleTable = placement.scheduleTable;
  session.ui.Message("Congratulations, you are the new head coach of " + offer.School);
  return true;
}

bool TakeJob(Session& session, const JobOffer& offer) {
  if (!session.ui.Ask("Are you sure you wish to switch jobs and join " + offer.School + "?")) {
    return false;
  }
  return MoveToSchool(session, offer);
}

}  // namespace courtmere
