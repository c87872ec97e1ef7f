// A league for the schedule's tests, set up from the seed tables as a new
// dynasty sets it up: the six fixed conferences as League 1 to 6, three low
// conferences as League 7 to 9, their schools in Team with InitialPrestige
// and Prestige from the seed, and a background field of 110 schools from the
// other low conferences in ScrubTeam. Team ratings follow prestige, so the
// strongest schools are known. No players: the schedule needs none.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/scripted_ui.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {

struct ScheduleRow {
  std::string table;
  int GameNo = 0;
  int Week = 0;
  std::string GameDay;
  std::string HomeTeam;
  std::string AwayTeam;
  std::string HomeConf;
  std::string AwayConf;
  std::string GameType;
  int HomeScore = 0;
  int AwayScore = 0;
};

class ScheduleLeague {
 public:
  explicit ScheduleLeague(const std::vector<std::string>& chosen = {"Big Sky", "MAC", "Northeast"},
                          uint64_t seed = 1);

  Session& session() { return *session_; }
  Store& store() { return session_->Db(); }
  ScriptedUi& ui() { return ui_; }

  // Makes `school` the user's: HeadCoach.Team and Team.Owner "Human".
  void SetUser(const std::string& school);

  // Every row of the ten schedule tables, in order of GameNo.
  std::vector<ScheduleRow> AllRows();
  std::vector<ScheduleRow> NonConfRows();
  // The conference of a first-division school; empty for a background team.
  std::string ConferenceOf(const std::string& school);
  bool IsBackground(const std::string& school);

 private:
  void CopyLeagues(const std::vector<std::string>& chosen);
  void CopyTeams(const std::vector<std::string>& chosen);
  void DrawBackgroundField();

  TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

// The low conferences whose templates, together with the six fixed ones,
// cover every schedule type: ("8", "12A", "13") and ("14B", "12B", "12C").
inline const std::vector<std::vector<std::string>> kCoveringChoices = {
    {"Big Sky", "Northeast", "MAC"},
    {"Conference USA", "Atlantic 10", "Southern"},
    {"America East", "Big West", "Sun Belt"},
};

}  // namespace courtmere::testing
