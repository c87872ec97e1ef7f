#include "recruiting/recruit_ranking.h"

#include <set>
#include <string>
#include <vector>

#include "recruiting/recruit_list.h"
#include "store/session.h"

namespace courtmere {

RecruitReply RankRecruits(Session& session, const std::map<int, int>& ranks, bool wholeList) {
  std::vector<RecruitRow> rows = UserRecruitRows(session);
  if (wholeList) {
    for (RecruitRow& row : rows) row.RecruitNo = 0;
  }
  for (const auto& [playerId, rank] : ranks) {
    if (rank < 1 || rank > kMostRecruits) {
      return RecruitReply::Refused("A rank must be a number from 1 to 5.");
    }
    bool listed = false;
    for (RecruitRow& row : rows) {
      if (row.PlayerID != playerId) continue;
      row.RecruitNo = rank;
      listed = true;
    }
    if (!listed) return RecruitReply::Refused("That recruit is not on your list of recruits.");
  }
  std::set<int> seen;
  for (const RecruitRow& row : rows) {
    if (row.RecruitNo > 0 && !seen.insert(row.RecruitNo).second) {
      return RecruitReply::Refused("Please use a different ranking for each player.");
    }
  }
  if (wholeList) {
    session.Db().Exec("UPDATE RecruitDecision SET RecruitNo = 0 WHERE Team = ?",
                      session.humanSchool);
  }
  for (const auto& [playerId, rank] : ranks) {
    session.Db().Exec("UPDATE RecruitDecision SET RecruitNo = ? WHERE Team = ? AND PlayerID = ?",
                      rank, session.humanSchool, playerId);
  }
  return RecruitReply::Ok();
}

bool RanksMissing(Session& session) {
  const std::vector<RecruitRow> rows = UserRecruitRows(session);
  if (rows.size() < static_cast<size_t>(kMostRecruits)) return false;
  for (const RecruitRow& row : rows) {
    if (row.RecruitNo == 0) return true;
  }
  return false;
}

}  // namespace courtmere
