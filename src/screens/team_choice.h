// The team choice of a new dynasty (frmTeamSelect): the user looks over the
// schools of his nine conferences, may rotate or restore their prestige,
// picks his school, gives his name and starts: the head coach's row is
// written and the whole league set up, in one transaction.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "screens/school_snapshot.h"

namespace courtmere {

struct Session;

class TeamChoice {
 public:
  explicit TeamChoice(Session& session) : session_(session) {}

  // The nine conferences and the schools of one, by name.
  std::vector<std::string> Conferences() const;
  std::vector<std::string> Schools(const std::string& conference) const;
  // The grid of a school, its prestige read on InitialPrestige.
  std::vector<std::pair<std::string, std::string>> Grid(const std::string& school) const;

  // The prestige button: Default when the option is set, else Randomize.
  bool PrestigeButton(bool optDefault) { return optDefault ? Default() : Randomize(); }
  // Each asks first; true when the prestige changed.
  bool Randomize();
  bool Default();

  // Takes the school for the user named `coachName` and sets up the league.
  // True when the dynasty stands in "Post Training".
  bool Start(const std::string& school, const std::string& coachName);

 private:
  Session& session_;
};

}  // namespace courtmere
