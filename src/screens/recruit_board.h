// The team recruiting screen's data (frmTeamRecruit): the user's recruits in
// his ranking's order with what he has done for each this season, the
// period, the points left, the scholarships, and the screen's side of each
// operation (what it offers, the questions it asks, the refusals it makes
// before the operation itself is asked).
#pragma once

#include <string>
#include <vector>

#include "recruiting/recruiting_period.h"

namespace courtmere {

struct Session;

// The columns in the screen's order; the Top Bid column is headed "Choice"
// after week 17.
inline constexpr const char* kRecruitBoardColumns[] = {
    "Name",     "Pos",    "Calls",   "Ast. Visits", "Visits", "Campus Visits",
    "Decision", "Points", "Top Bid", "Scholarship", "Rank"};

// Design decision: a row takes the first colour that applies, blue for a
// man bound for the NBA, green for a junior-college recruit, red for one
// who cannot sign (gone, or failed the test); a recruit bound for the NBA
// is also ineligible, and would otherwise never show blue.
enum class RecruitRowColour { kPlain, kBlue, kGreen, kRed };

struct RecruitBoardRow {
  int PlayerID = 0;
  std::string Name;
  std::string Pos;
  int Calls = 0;
  int Assistant = 0;
  int Visits = 0;
  int CampusVisits = 0;
  std::string Decision;
  int Points = 0;
  std::string TopBid;  // "NA", the estimate, or the school he chose
  bool Scholarship = false;
  int Rank = 0;  // 0 until ranked
  RecruitRowColour Colour = RecruitRowColour::kPlain;
};

struct RecruitBoard {
  std::string Title;  // "<school> Recruits"
  RecruitingPeriod Period = RecruitingPeriod::kDead;
  std::string PeriodText;  // "Contact Period", "End of Season", ...
  int Week = 0;
  int PointsAvail = 0;               // 0 from week 14 on
  int Allowance = 0;                 // scrolls drawn: the scholarships he may offer
  int Offered = 0;                   // used scrolls
  std::string TopBidHeading;         // "Top Bid", or "Choice" after week 17
  std::vector<std::string> Actions;  // the period's actions; empty: the list is off
  bool ScholarshipsOpen = false;     // Offer and Rescind, through week 15
  std::vector<RecruitBoardRow> Rows;
};

RecruitBoard LoadRecruitBoard(Session& session, RecruitingPeriod period);

// The bid list of an action: 0 to its ceiling, the ceiling selected, or the
// points left when they are fewer.
struct BidChoices {
  int Highest = 0;
  int Selected = 0;
};
BidChoices BidChoicesFor(const std::string& action, int pointsLeft);

}  // namespace courtmere
