#include "recruiting/scholarships.h"

#include <algorithm>

#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kFullRoster = 13;
constexpr int kMostScholarshipsOffered = 5;

int Count(Session& session, const char* sql) {
  return static_cast<int>(session.Db().ScalarInt(sql, session.humanSchool).value_or(0));
}

}  // namespace

int ScholarshipAllowance(Session& session, SeniorCount seniors) {
  if (session.config.CurrWeek >= 3) {
    return Count(session, "SELECT Scholarships FROM Team WHERE SchoolName = ?");
  }
  const int leaving =
      seniors == SeniorCount::kScreen
          ? Count(session,
                  "SELECT count(*) FROM Player WHERE Team = ? AND PlayerYear = 'Senior' AND "
                  "Redshirt <> 1")
          : Count(session, "SELECT count(*) FROM Player WHERE Team = ? AND PlayerYear = 'Senior'");
  const int players = Count(session, "SELECT count(*) FROM Player WHERE Team = ?");
  return std::min(leaving + kFullRoster - players, kMostScholarshipsOffered);
}

int ScholarshipsOffered(Session& session) {
  return Count(session, "SELECT count(*) FROM RecruitDecision WHERE Team = ? AND Scholarship = 1");
}

RecruitReply OfferScholarship(Session& session, int playerId) {
  if (ScholarshipsOffered(session) >= ScholarshipAllowance(session, SeniorCount::kOffer)) {
    return RecruitReply::Refused(
        "You have already used your allotted number of scholarships. You cannot offer any more "
        "this season.");
  }
  session.Db().Exec("UPDATE RecruitDecision SET Scholarship = 1 WHERE Team = ? AND PlayerID = ?",
                    session.humanSchool, playerId);
  return RecruitReply::Ok();
}

void RescindScholarship(Session& session, int playerId) {
  session.Db().Exec("UPDATE RecruitDecision SET Scholarship = 0 WHERE Team = ? AND PlayerID = ?",
                    session.humanSchool, playerId);
}

}  // namespace courtmere
