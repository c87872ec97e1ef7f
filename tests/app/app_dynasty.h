// A small dynasty for the desktop program's tests, built by hand in a blank
// store in a temporary program folder: one conference of four schools (the
// user's is "St. John's", another carries a non-ASCII letter), rosters, staff
// and depth charts made as a new dynasty makes them (the user's coaches have
// no roles until he gives them on the roles screen), the user's head coach,
// and games played through the engine with their schedule rows, box scores
// and logs.
#pragma once

#include <memory>
#include <string>

#include "platform/scripted_ui.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {

class AppDynasty {
 public:
  static constexpr const char* kHuman = "St. John's";
  static constexpr const char* kAccented = "Québec A&M";
  static constexpr const char* kConference = "Big East";

  explicit AppDynasty(uint64_t seed = 7);

  Session& session() { return *session_; }
  Store& store() { return session_->Db(); }
  ScriptedUi& ui() { return ui_; }
  const std::filesystem::path& folder() const { return dir_.Path(); }

  // What the user does on the roles screen before his first game: the first
  // coach runs the offense, the second the defense, and Submit.
  void NameCoachRoles();
  // Puts the calendar at a stage and a week.
  void SetCalendar(const std::string& stage, int week);
  // Plays a game through the engine, records it into the season's figures
  // and TeamStats, and writes its schedule row (NonConfSchedule, or the
  // conference's table when both schools belong to it) with the box score
  // and the log. Returns the game's number.
  int PlayGame(const std::string& home, const std::string& away, int week, const std::string& day,
               bool conference);
  // A schedule row for a game not played yet.
  void ScheduleGame(const std::string& home, const std::string& away, int week,
                    const std::string& day);

 private:
  void AddSchool(const std::string& school, const std::string& region, int prestige,
                 const std::string& owner);

  TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

}  // namespace courtmere::testing
