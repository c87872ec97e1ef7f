// A small dynasty for tests: a blank store in a temporary program folder,
// name pools and high schools when the seed tables are empty, and the
// schools, players and scouts each test adds by hand.
#pragma once

#include <memory>
#include <string>

#include "platform/scripted_ui.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {

class LeagueFixture {
 public:
  explicit LeagueFixture(uint64_t seed = 1);

  Session& session() { return *session_; }
  Store& store() { return session_->Db(); }
  ScriptedUi& ui() { return ui_; }

  void AddTeam(const std::string& school, const std::string& region, int prestige,
               const std::string& owner = "Computer");
  void AddScrubTeam(const std::string& school, int prestige);
  void AddScout(const std::string& team, int skill);
  // A bare Player row; returns its id.
  int AddPlayer(const std::string& team, int position, double overall,
                const std::string& year = "Freshman");

 private:
  void FillSeedPools();

  TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
  int nextId_ = 5000;
};

}  // namespace courtmere::testing
