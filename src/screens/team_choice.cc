#include "screens/team_choice.h"

#include "league/head_coach.h"
#include "league/prestige_bands.h"
#include "league/prestige_options.h"
#include "league/setup_teams.h"
#include "store/session.h"

namespace courtmere {

std::vector<std::string> TeamChoice::Conferences() const {
  std::vector<std::string> names;
  for (Rows rows = session_.Db().Query("SELECT Conference FROM League ORDER BY Conference ASC");
       rows.Next();) {
    names.push_back(rows.Text(0));
  }
  return names;
}

std::vector<std::string> TeamChoice::Schools(const std::string& conference) const {
  std::vector<std::string> schools;
  for (Rows rows = session_.Db().Query(
           "SELECT SchoolName FROM Team WHERE Conference = ? ORDER BY SchoolName ASC", conference);
       rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  return schools;
}

std::vector<std::pair<std::string, std::string>> TeamChoice::Grid(const std::string& school) const {
  return TeamGrid(TeamSnapshot(session_.Db(), school));
}

bool TeamChoice::Randomize() {
  if (!session_.ui.Ask("Do you wish to randomize the prestige levels for all schools?")) {
    return false;
  }
  RandomizePrestige(session_);
  return true;
}

bool TeamChoice::Default() {
  if (!session_.ui.Ask("Do you wish to go back to the default prestige levels for all schools?")) {
    return false;
  }
  DefaultPrestige(session_);
  return true;
}

bool TeamChoice::Start(const std::string& school, const std::string& coachName) {
  Ui& ui = session_.ui;
  Store& store = session_.Db();
  const auto prestige =
      store.ScalarInt("SELECT InitialPrestige FROM Team WHERE SchoolName = ?", school);
  // Design decision: the screen only offers the dynasty's schools; any other
  // name is sent back with a message in the program's own words.
  if (!prestige) {
    ui.Message("Please select a school of your nine conferences before proceeding.");
    return false;
  }
  if (!ui.Ask("Do you wish to select " + school + "?")) return false;
  if (coachName.empty()) {
    ui.Message("Please enter the coach's name before proceeding.");
    return false;
  }
  Store::Transaction tx(store);
  AddHeadCoach(store, coachName, school, BandOf(static_cast<double>(*prestige)).Expectations);
  ui.ShowProgress("Setting up Teams");
  SetupTeams(session_, school);
  tx.Commit();
  return true;
}

}  // namespace courtmere
