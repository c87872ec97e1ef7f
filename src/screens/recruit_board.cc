#include "screens/recruit_board.h"

#include <algorithm>

#include "people/player.h"
#include "recruiting/recruit_points.h"
#include "recruiting/scholarships.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kLastTopBidHiddenWeek = 4;
constexpr int kLastPointsWeek = 13;
constexpr int kLastTopBidHeadingWeek = 17;

RecruitRowColour ColourOf(int nbaFlag, const std::string& playerYear, int inEligible) {
  if (nbaFlag == 1) return RecruitRowColour::kBlue;
  if (playerYear == "JCRecruit") return RecruitRowColour::kGreen;
  if (inEligible > 0) return RecruitRowColour::kRed;
  return RecruitRowColour::kPlain;
}

std::string TopBidText(int week, int topBid, const std::string& choice) {
  if (!choice.empty()) return choice;
  if (week <= kLastTopBidHiddenWeek) return "NA";
  return std::to_string(topBid);
}

// Design decision: recruits not yet ranked follow the ranked ones, in the
// order they were added.
std::vector<RecruitBoardRow> BoardRows(Session& session, int week) {
  std::vector<RecruitBoardRow> rows;
  for (Rows r = session.Db().Query(
           "SELECT PlayerID, coalesce(Player.Name, ''), coalesce(PlayerPosition, 0), Call, "
           "Assistant, Visit, CampusVisit, coalesce(WeekDecision, 'none'), RecruitPoints, TopBid, "
           "Scholarship, coalesce(RecruitNo, 0), coalesce(NBAFlag, 0), coalesce(PlayerYear, ''), "
           "coalesce(Recruit.InEligible, 0), coalesce(Recruit.TeamChoice, '') FROM "
           "RecruitDecision LEFT JOIN Player ON Player.Id = PlayerID LEFT JOIN Recruit ON "
           "Recruit.Id = PlayerID WHERE RecruitDecision.Team = ? ORDER BY coalesce(RecruitNo, "
           "0) = 0, RecruitNo, RecruitDecision.Id",
           session.humanSchool);
       r.Next();) {
    RecruitBoardRow row;
    row.PlayerID = r.Int(0);
    row.Name = r.Text(1);
    row.Pos = PositionName(r.Int(2));
    row.Calls = r.Int(3);
    row.Assistant = r.Int(4);
    row.Visits = r.Int(5);
    row.CampusVisits = r.Int(6);
    row.Decision = r.Text(7);
    row.Points = r.Int(8);
    row.TopBid = TopBidText(week, r.Int(9), std::string(r.Text(15)));
    row.Scholarship = r.Int(10) == 1;
    row.Rank = r.Int(11);
    row.Colour = ColourOf(r.Int(12), std::string(r.Text(13)), r.Int(14));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

RecruitBoard LoadRecruitBoard(Session& session, RecruitingPeriod period) {
  const int week = session.config.CurrWeek;
  RecruitBoard board;
  board.Title = session.humanSchool + " Recruits";
  board.Period = period;
  board.PeriodText = period == RecruitingPeriod::kEndOfSeason ? PeriodName(period)
                     : period == RecruitingPeriod::kNone      ? ""
                                                              : PeriodName(period) + " Period";
  board.Week = week;
  board.PointsAvail = week > kLastPointsWeek ? 0 : UserPointsAvail(session);
  board.Allowance = std::max(ScholarshipAllowance(session, SeniorCount::kScreen), 0);
  board.Offered = ScholarshipsOffered(session);
  board.TopBidHeading = week > kLastTopBidHeadingWeek ? "Choice" : "Top Bid";
  board.Actions = ActionsOffered(period);
  board.ScholarshipsOpen = week <= kLastScholarshipWeek;
  board.Rows = BoardRows(session, week);
  return board;
}

BidChoices BidChoicesFor(const std::string& action, int pointsLeft) {
  const int ceiling = BidCeiling(action);
  return {ceiling, std::clamp(pointsLeft, 0, ceiling)};
}

}  // namespace courtmere
