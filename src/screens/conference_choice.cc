#include "screens/conference_choice.h"

#include <algorithm>

#include "league/league_setup.h"
#include "store/session.h"

namespace courtmere {

ConferenceChoice::ConferenceChoice(Session& session) : session_(session) {
  for (Rows rows = session.Db().Query(
           "SELECT Conference FROM LeagueSetup WHERE Id > 6 ORDER BY Conference ASC");
       rows.Next();) {
    conferences_.push_back(rows.Text(0));
  }
}

std::vector<std::string> ConferenceChoice::Schools(const std::string& conference) const {
  std::vector<std::string> schools;
  for (Rows rows = session_.Db().Query(
           "SELECT SchoolName FROM LowLeagueSetup WHERE Conference = ? ORDER BY SchoolName ASC",
           conference);
       rows.Next();) {
    schools.push_back(rows.Text(0));
  }
  return schools;
}

SchoolSnapshot ConferenceChoice::Snapshot(const std::string& school) const {
  return LowLeagueSnapshot(session_.Db(), school);
}

bool ConferenceChoice::Listed(const std::string& conference) const {
  return std::find(conferences_.begin(), conferences_.end(), conference) != conferences_.end();
}

bool ConferenceChoice::Chosen(const std::string& conference) const {
  return std::find(chosen_.begin(), chosen_.end(), conference) != chosen_.end();
}

bool ConferenceChoice::Add(const std::string& conference) {
  Ui& ui = session_.ui;
  // Design decision: a name that is not on the list is told the message of a
  // conference the store doesn't know, and one already chosen can't be
  // chosen twice (its schools would be added twice).
  if (!Listed(conference)) {
    ui.Message("League not found");
    return false;
  }
  auto free = std::find(chosen_.begin(), chosen_.end(), std::string());
  if (free == chosen_.end()) {
    ui.Message(
        "You already have selected three leagues. Please remove one if you wish to select "
        "another.");
    return false;
  }
  if (Chosen(conference)) {
    ui.Message("The " + conference + " is already on your list of three.");
    return false;
  }
  if (!ui.Ask("Do you wish to add the " + conference + " to your list of three?")) return false;
  *free = conference;
  return true;
}

bool ConferenceChoice::Remove(int slot) {
  if (slot < 0 || slot > 2 || chosen_[slot].empty()) return false;
  if (!session_.ui.Ask("Are you sure you want to remove the " + chosen_[slot] +
                       " from your list of three?")) {
    return false;
  }
  chosen_[slot].clear();
  return true;
}

bool ConferenceChoice::Continue() {
  Ui& ui = session_.ui;
  if (Chosen(std::string())) {
    ui.Message("Please enter three leagues before proceeding.");
    return false;
  }
  if (!ui.Ask("Do you wish to add these three leagues to your dynasty?")) return false;
  Store::Transaction tx(session_.Db());
  if (!AddChosenConferences(session_, chosen_)) return false;
  AddChosenTeams(session_);
  tx.Commit();
  return true;
}

}  // namespace courtmere
