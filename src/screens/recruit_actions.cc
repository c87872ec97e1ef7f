#include "screens/recruit_actions.h"

#include <optional>

#include "recruiting/recruit_decision.h"
#include "recruiting/recruit_list.h"
#include "recruiting/recruit_points.h"
#include "recruiting/scholarships.h"
#include "store/session.h"

namespace courtmere {

namespace {

RecruitReply NotListed() {
  return RecruitReply::Refused("That recruit is not on your list of recruits.");
}

// The name of a recruit on the user's list.
std::optional<std::string> ListedName(Session& session, int playerId) {
  if (!UserRecruitRow(session, playerId)) return std::nullopt;
  return RecruitName(session, playerId).value_or("");
}

bool Asked(Session& session, const std::string& question) {
  return session.ui.Ask(question);
}

RecruitReply ScholarshipsClosed(Session& session) {
  if (session.config.CurrWeek <= kLastScholarshipWeek) return RecruitReply::Ok();
  return RecruitReply::Refused("Scholarships can no longer be offered or rescinded after week 15.");
}

}  // namespace

RecruitReply AskAddRecruit(Session& session, int playerId) {
  const std::optional<std::string> name = session.Db().ScalarText(
      "SELECT Name FROM Player, Recruit WHERE Player.Id = Recruit.Id AND Player.Id = ? AND "
      "PlayerYear LIKE '%Recruit'",
      playerId);
  if (!name)
    return RecruitReply::Refused("There is no recruit with the id " + std::to_string(playerId) +
                                 ".");
  if (!Asked(session, "Do you wish to add " + *name + " to your list of recruits?")) return {};
  return AddRecruit(session, playerId, *name);
}

RecruitReply AskRemoveRecruit(Session& session, int playerId) {
  const std::optional<std::string> name = ListedName(session, playerId);
  if (!name) return NotListed();
  if (!Asked(session, "Are you sure you wish to remove " + *name + " from your recruiting list?")) {
    return {};
  }
  RemoveRecruit(session, playerId);
  return RecruitReply::Ok();
}

RecruitReply AskClearDecision(Session& session, int playerId) {
  const std::optional<RecruitRow> row = UserRecruitRow(session, playerId);
  if (!row) return NotListed();
  if (row->WeekDecision == "none") return ClearRecruitDecision(session, playerId);
  if (!Asked(session, "Are you sure you wish to clear this week's recruiting decision for " +
                          row->Name + "?")) {
    return {};
  }
  return ClearRecruitDecision(session, playerId);
}

RecruitReply AskOfferScholarship(Session& session, int playerId) {
  const std::optional<std::string> name = ListedName(session, playerId);
  if (!name) return NotListed();
  if (RecruitReply closed = ScholarshipsClosed(session); !closed.Done) return closed;
  if (!Asked(session, "Are you sure you wish to offer a scholarship to " + *name + "?")) return {};
  return OfferScholarship(session, playerId);
}

RecruitReply AskRescindScholarship(Session& session, int playerId) {
  const std::optional<std::string> name = ListedName(session, playerId);
  if (!name) return NotListed();
  if (RecruitReply closed = ScholarshipsClosed(session); !closed.Done) return closed;
  if (!Asked(session, "Are you sure you wish to rescind the scholarship to " + *name + "?")) {
    return {};
  }
  RescindScholarship(session, playerId);
  return RecruitReply::Ok();
}

RecruitReply BidOnRecruit(Session& session, RecruitingPeriod period, int playerId,
                          const std::string& action, int bid) {
  if (!UserRecruitRow(session, playerId)) return NotListed();
  if (!ActionOffered(period, action)) {
    const std::string name = PeriodName(period);
    return RecruitReply::Refused("\"" + action + "\" is not offered in " +
                                 (name.empty() ? "this week." : "the " + name + " period."));
  }
  if (UserPointsAvail(session) <= 0) return RecruitReply::Refused(kNoPointsLeft);
  if (bid < 0 || bid > BidCeiling(action)) {
    return RecruitReply::Refused("A bid for " + action + " is a number of points from 0 to " +
                                 std::to_string(BidCeiling(action)) + ".");
  }
  return RecordRecruitDecision(session, action, playerId, bid);
}

}  // namespace courtmere
