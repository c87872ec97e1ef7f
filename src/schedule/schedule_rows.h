// Adding games to the schedule tables, each under the next game number.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

class Store;
struct GameCounter;

inline constexpr std::string_view kConferenceGame = "Conference";
inline constexpr std::string_view kNonConferenceGame = "NonConference";

// A conference game in the table of League row `leagueId`.
void AddConferenceGame(Store& store, GameCounter& counter, int leagueId, const std::string& home,
                       const std::string& away, int week, std::string_view day);

struct NonConfGame {
  std::string home;
  std::string away;
  std::string homeConf;
  std::string awayConf;
  int week = 0;
  std::string_view day;
  std::string_view gameType = kNonConferenceGame;
};

// A game in NonConfSchedule.
void AddNonConfGame(Store& store, GameCounter& counter, const NonConfGame& game);

}  // namespace courtmere
