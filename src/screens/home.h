// The home screen of the user's school: where it stands (record, place in
// its conference, poll and rating-index rank with their course by week),
// its next game and last results, the week's recruiting period, the newest
// letters of the inbox and the list of what to do next.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "league/rank_history.h"
#include "recruiting/recruiting_period.h"
#include "screens/todo_list.h"

namespace courtmere {

struct Session;

struct HomeGame {
  int Week = 0;
  std::string Day;
  std::string Site;  // "Home", "Away" or "Neutral"
  std::string Opponent;
  std::string Result;    // "W 78-70"; empty before the game
  std::string BoxScore;  // the box score's file, once played
};

struct HomeLetter {
  int Week = 0;
  std::string From;
  std::string Subject;
};

struct Home {
  std::string School;
  std::string Coach;
  std::string Calendar;  // "Week 3, Thursday, 2001" or the stage out of season
  std::string Period;    // the recruiting period: "Contact Period"
  std::string Record;    // "4-2"
  std::string ConferenceRecord;
  std::string ConferencePlace;  // "3rd of 12 in the Big East"
  std::string PollRank;         // "No. 7", or "Not ranked"
  std::string CriRank;          // "No. 12", or "Not ranked yet"
  std::vector<RankPoint> Ranks;
  std::optional<HomeGame> Next;
  std::vector<HomeGame> Last;       // newest first, at most kLastResults
  std::vector<HomeLetter> Letters;  // newest first, at most kNewestLetters
  std::vector<TodoItem> Todo;
};

inline constexpr size_t kLastResults = 3;
inline constexpr size_t kNewestLetters = 4;

// Nothing but the to-do list without a dynasty.
Home LoadHome(Session& session, RecruitingPeriod period);

// 1 "1st", 2 "2nd", 3 "3rd", 11 "11th", 22 "22nd".
std::string Ordinal(int n);

}  // namespace courtmere
