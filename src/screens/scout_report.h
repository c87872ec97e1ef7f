// frmScoutOpp, Scout Opponents: the user's next opponent as his staff reports
// it: the game, the opponent's record and ranks, his tactics, his leaders this
// season, and his roster graded by the user's own head scout.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "screens/roster_rules.h"

namespace courtmere {

struct Session;

struct ScoutedPlayer {
  int Id = 0;
  std::string Name;
  std::string Position;
  std::string Year;
  std::string Height;
  int Overall = 0;                     // ScoutOverall through the user's scout
  std::array<std::string, 10> Grades;  // in the order of kGradeLabels
};

struct ScoutLeader {
  std::string Stat;  // "Points", "Rebounds", "Assists"
  int PlayerId = 0;
  std::string Name;
  std::string Value;  // per game, "18.4"
};

struct ScoutReport {
  std::string Opponent;
  std::string Game;  // "Week 3, Saturday: at Duke"
  std::string Conference;
  std::string Record;
  std::string PollRank;  // "No. 7", or "Not ranked"
  std::string CriRank;
  TeamTactics Tactics;
  std::string Scout;  // the head scout's name
  std::vector<ScoutLeader> Leaders;
  std::vector<ScoutedPlayer> Roster;  // best scouted overall first
};

// Nothing when the user has no game left on his schedule.
//
// Design decision: the scout's errors are drawn from a generator seeded by
// the player, the scout and the year, not from the dynasty's: the report
// reads the same each time it is opened within a season, and opening it
// leaves the dynasty's random sequence (and so its replay) untouched. A
// background school's players carry no ratings to judge: they are listed
// without grades.
std::optional<ScoutReport> ScoutNextOpponent(Session& session);

}  // namespace courtmere
