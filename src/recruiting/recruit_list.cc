#include "recruiting/recruit_list.h"

#include <vector>

#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kRowColumns =
    "SELECT RecruitDecision.Id, PlayerID, coalesce(Player.Name, ''), coalesce(RecruitNo, 0), "
    "Call, Assistant, Visit, CampusVisit, coalesce(WeekDecision, 'none'), WeekBid, "
    "RecruitPoints, TopBid, Scholarship FROM RecruitDecision LEFT JOIN Player ON Player.Id = "
    "PlayerID WHERE RecruitDecision.Team = ?";

RecruitRow ReadRow(const Rows& r) {
  RecruitRow row;
  row.Id = r.Int(0);
  row.PlayerID = r.Int(1);
  row.Name = r.Text(2);
  row.RecruitNo = r.Int(3);
  row.Call = r.Int(4);
  row.Assistant = r.Int(5);
  row.Visit = r.Int(6);
  row.CampusVisit = r.Int(7);
  row.WeekDecision = r.Text(8);
  row.WeekBid = r.Int(9);
  row.RecruitPoints = r.Int(10);
  row.TopBid = r.Int(11);
  row.Scholarship = r.Int(12);
  return row;
}

}  // namespace

int& RecruitRow::Count(const std::string& action) {
  if (action == "Assistant") return Assistant;
  if (action == "Visit") return Visit;
  if (action == "CampusVisit") return CampusVisit;
  return Call;
}

std::vector<RecruitRow> UserRecruitRows(Session& session) {
  std::vector<RecruitRow> rows;
  for (Rows r = session.Db().Query(std::string(kRowColumns) + " ORDER BY RecruitDecision.Id",
                                   session.humanSchool);
       r.Next();) {
    rows.push_back(ReadRow(r));
  }
  return rows;
}

std::optional<RecruitRow> UserRecruitRow(Session& session, int playerId) {
  Rows r = session.Db().Query(std::string(kRowColumns) + " AND PlayerID = ?", session.humanSchool,
                              playerId);
  if (!r.Next()) return std::nullopt;
  return ReadRow(r);
}

std::optional<std::string> RecruitName(Session& session, int playerId) {
  return session.Db().ScalarText("SELECT Name FROM Player WHERE Id = ?", playerId);
}

RecruitReply AddRecruit(Session& session, int playerId, const std::string& name) {
  const std::vector<RecruitRow> rows = UserRecruitRows(session);
  for (const RecruitRow& row : rows) {
    if (row.PlayerID == playerId) {
      return RecruitReply::Refused(
          name +
          " has already been added to your list of recruits. Please choose another recruit.");
    }
  }
  if (rows.size() >= kMostRecruits) {
    return RecruitReply::Refused(
        "You have already chosen the maximum of five recruits this season. You may not chose "
        "another.");
  }
  session.Db().Exec(
      "INSERT INTO RecruitDecision (Team, PlayerID, WeekDecision) VALUES (?, ?, 'none')",
      session.humanSchool, playerId);
  return RecruitReply::Ok(name + " has been added to your list of recruits.");
}

void RemoveRecruit(Session& session, int playerId) {
  session.Db().Exec("DELETE FROM RecruitDecision WHERE Team = ? AND PlayerID = ?",
                    session.humanSchool, playerId);
}

}  // namespace courtmere
