#include "recruiting/recruit_decision.h"

#include <optional>
#include <vector>

#include "recruiting/recruit_list.h"
#include "recruiting/recruiting_period.h"
#include "store/session.h"

namespace courtmere {

namespace {

// TeamRecruit's season total of an action.
std::string TotalColumn(const std::string& action) {
  if (action == "Assistant") return "Assistants";
  if (action == "Visit") return "Visits";
  if (action == "CampusVisit") return "CampusVisits";
  return "Calls";
}

// The recruit's own limits.
std::optional<std::string> OwnRowRefusal(const RecruitRow& row, const std::string& action) {
  if (row.WeekDecision != "none") {
    return "You have already made your decision on this recruit this week.";
  }
  if (action == "CampusVisit" && row.CampusVisit > 0) {
    return "You have already setup a campus visit for this recruit.";
  }
  if (action == "Visit" && row.Visit > 1) {
    return "You have already used the allotted number of home visits for this recruit.";
  }
  if (action == "Assistant" && row.Assistant > 2) {
    return "You have already used the allotted number of visits by an assistant coach for this "
           "recruit.";
  }
  return std::nullopt;
}

// Another recruit already holds this week's action; `assistants` counts the
// assistant visits met so far.
std::optional<std::string> OtherRowRefusal(const RecruitRow& row, const std::string& action,
                                           int& assistants) {
  if (row.WeekDecision != action) return std::nullopt;
  if (action == "Visit") {
    return "You have already made the decision to use your allotted number of Player Visits "
           "this week. Make another selection.";
  }
  if (action == "CampusVisit") {
    return "You have already made the decision to use your allotted number of Campus Visits "
           "this week. Make another selection.";
  }
  if (action == "Assistant" && ++assistants == 2) {
    return "You have already made the decision to use your allotted number of Assistant Coach "
           "Visits this week. Make another selection.";
  }
  return std::nullopt;
}

struct TeamTotals {
  int PointsAvail = 0;
  int Visits = 0;
  int CampusVisits = 0;
  int Scholarships = 0;
};

TeamTotals ReadTotals(Session& session) {
  TeamTotals t;
  Store& store = session.Db();
  Rows r = store.Query("SELECT PointsAvail, Visits, CampusVisits FROM TeamRecruit WHERE Team = ?",
                       session.humanSchool);
  if (r.Next()) {
    t.PointsAvail = r.Int(0);
    t.Visits = r.Int(1);
    t.CampusVisits = r.Int(2);
  }
  t.Scholarships = static_cast<int>(
      store.ScalarInt("SELECT Scholarships FROM Team WHERE SchoolName = ?", session.humanSchool)
          .value_or(0));
  return t;
}

std::optional<std::string> SeasonRefusal(const TeamTotals& t, const std::string& action) {
  if (action == "CampusVisit" && t.CampusVisits >= t.Scholarships) {
    return "You have already used all your campus visits for this recruiting season.";
  }
  if (action == "Visit" && t.Visits >= 2 * t.Scholarships) {
    return "You have already used all your head coach visits for this recruiting season.";
  }
  return std::nullopt;
}

void AddToTotal(Session& session, const std::string& action, int step, int points) {
  const std::string column = TotalColumn(action);
  session.Db().Exec("UPDATE TeamRecruit SET " + column + " = max(" + column +
                        " + ?, 0), PointsAvail = max(PointsAvail + ?, 0) WHERE Team = ?",
                    step, points, session.humanSchool);
}

}  // namespace

RecruitReply RecordRecruitDecision(Session& session, const std::string& action, int playerId,
                                   int bid) {
  if (BidCeiling(action) == 0) {
    return RecruitReply::Refused("\"" + action + "\" is not a recruiting action.");
  }
  std::optional<RecruitRow> own;
  int assistants = 0;
  for (RecruitRow& row : UserRecruitRows(session)) {
    std::optional<std::string> refusal;
    if (row.PlayerID == playerId) {
      refusal = OwnRowRefusal(row, action);
      own = row;
    } else {
      refusal = OtherRowRefusal(row, action, assistants);
    }
    if (refusal) return RecruitReply::Refused(*refusal);
  }
  const TeamTotals totals = ReadTotals(session);
  if (std::optional<std::string> refusal = SeasonRefusal(totals, action)) {
    return RecruitReply::Refused(*refusal);
  }
  if (!own || bid > totals.PointsAvail) {
    return RecruitReply::Refused("You don't have enough recruiting points left to make that bid.");
  }
  session.Db().Exec("UPDATE RecruitDecision SET " + action +
                        " = ?, WeekDecision = ?, "
                        "RecruitPoints = ?, WeekBid = ? WHERE Id = ?",
                    own->Count(action) + 1, action, own->RecruitPoints + bid, bid, own->Id);
  // The bid leaves the points left; the update keeps them at least 0, and a
  // bid never exceeds them.
  AddToTotal(session, action, 1, -bid);
  return RecruitReply::Ok();
}

RecruitReply ClearRecruitDecision(Session& session, int playerId) {
  std::optional<RecruitRow> row = UserRecruitRow(session, playerId);
  if (!row || BidCeiling(row->WeekDecision) == 0) {
    return RecruitReply::Refused("There is no decision to clear on this recruit this week.");
  }
  const std::string action = row->WeekDecision;
  session.Db().Exec("UPDATE RecruitDecision SET " + action + " = max(" + action +
                        " - 1, 0), RecruitPoints = RecruitPoints - WeekBid, "
                        "WeekDecision = 'none', WeekBid = 0 WHERE Id = ?",
                    row->Id);
  AddToTotal(session, action, -1, row->WeekBid);
  return RecruitReply::Ok();
}

}  // namespace courtmere
