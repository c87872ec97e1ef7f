// The box-score screen's data (frmBoxScore): which file a played game's box
// score is in, the two schools and scores at its head, and the player behind
// a name in its grids.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace courtmere {

class Store;
struct Session;

// The code in "Error displaying the player. The code is <code>" when no
// player of the school has the name shown (design decision: the program's
// own number for "no such player").
inline constexpr int kNoSuchPlayerCode = 1;

// The box file of a game by its number, from NonConfSchedule or else the
// conference table given. Nothing when the path is empty or no such file
// exists: the click then does nothing.
std::optional<std::filesystem::path> BoxScoreFile(Store& store, int gameNo,
                                                  const std::string& conferenceTable);

// The head of a box file: "<school> Score: <n>" for the home side, then the
// away side.
struct BoxScoreHeader {
  std::string HomeTeam;
  std::string AwayTeam;
  std::string HomeScore;
  std::string AwayScore;
};
BoxScoreHeader ReadBoxScoreHeader(const std::filesystem::path& file);

// The Id of the player shown as `abbrName` in the school's grid. An empty
// name (an empty row) gives nothing silently; a name no player of the school
// has shows "Error displaying the player. The code is 1" and gives nothing.
std::optional<int> BoxScorePlayer(Session& session, const std::string& school,
                                  const std::string& abbrName);

}  // namespace courtmere
