// The game-log screen's data (frmGameLog): a school's season game by game,
// and the play-by-play log of one game.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace courtmere {

class Store;

// One row of the grid. Result and Score stay empty for a game not played
// (HomeScore 0, whatever the away score says).
struct GameLogRow {
  int GameNo = 0;
  int Week = 0;
  std::string GameDay;
  std::string Team;    // the opponent
  std::string Record;  // the opponent's "wins-losses"
  std::string Result;  // "Win" or "Loss"
  std::string Score;   // the school's score first
};

// The conferences of the dynasty in alphabetical order.
std::vector<std::string> GameLogConferences(Store& store);

// The schools of a conference, in table order.
std::vector<std::string> ConferenceSchools(Store& store, const std::string& conference);

// The schedule table of a conference, "League<Id>Schedule"; empty when the
// conference has no League row.
std::string ConferenceScheduleTable(Store& store, const std::string& conference);

// The school's games: its non-conference and conference lists merged by week,
// a non-conference Thursday game coming before a conference game of the same
// week.
std::vector<GameLogRow> TeamGameLog(Store& store, const std::string& school);

// The log file of a game, looked for in NonConfSchedule and then in the
// conference's table. Nothing when the game has no log: an empty value, or
// "none" (design decision: the word the engine writes for "no log").
std::optional<std::filesystem::path> GameLogFile(Store& store, int gameNo,
                                                 const std::string& conference);

}  // namespace courtmere
