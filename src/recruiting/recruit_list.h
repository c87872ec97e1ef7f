// The user's list of recruits: at most five RecruitDecision rows of his
// school, each holding what he has spent on one recruit this season.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "recruiting/recruit_reply.h"

namespace courtmere {

struct Session;

inline constexpr int kMostRecruits = 5;

// One row of the user's list.
struct RecruitRow {
  int Id = 0;  // the RecruitDecision row
  int PlayerID = 0;
  std::string Name;
  int RecruitNo = 0;
  int Call = 0;
  int Assistant = 0;
  int Visit = 0;
  int CampusVisit = 0;
  std::string WeekDecision = "none";
  int WeekBid = 0;
  int RecruitPoints = 0;
  int TopBid = 0;
  int Scholarship = 0;

  // The season's count of an action on this recruit.
  int& Count(const std::string& action);
};

// The user's rows in the order of the table.
std::vector<RecruitRow> UserRecruitRows(Session& session);
std::optional<RecruitRow> UserRecruitRow(Session& session, int playerId);

// The name of the Player row, if there is one.
std::optional<std::string> RecruitName(Session& session, int playerId);

// Puts a recruit on the list, or says why not (already there, or five
// listed).
RecruitReply AddRecruit(Session& session, int playerId, const std::string& name);

// Takes him off the list; the points spent on him are lost.
void RemoveRecruit(Session& session, int playerId);

}  // namespace courtmere
