#include "recruiting/recruit_points.h"

#include <algorithm>
#include <optional>

#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kUserFloor = 10;

int Scalar(Store& store, const std::string& sql, const std::string& team) {
  return static_cast<int>(store.ScalarInt(sql, team).value_or(0));
}

// +10 for each win, -10 for each other game of the team on this side in
// `week`: the user's conference table first, the non-conference table when
// that has none.
int GamesTerm(Session& session, const std::string& team, int week, bool home) {
  const char* side = home ? "HomeTeam" : "AwayTeam";
  const char* won = home ? "HomeScore > AwayScore" : "AwayScore > HomeScore";
  const std::string tail = std::string(" WHERE Week = ? AND ") + side + " = ?";
  auto term = [&](const std::string& table) -> std::optional<int> {
    int games = 0;
    int sum = 0;
    for (Rows r =
             session.Db().Query(std::string("SELECT ") + won + " FROM " + table + tail, week, team);
         r.Next(); ++games) {
      sum += r.Int(0) ? 10 : -10;
    }
    if (games == 0) return std::nullopt;
    return sum;
  };
  if (!session.humanScheduleTable.empty()) {
    if (const std::optional<int> t = term(session.humanScheduleTable)) return *t;
  }
  return term("NonConfSchedule").value_or(0);
}

}  // namespace

int RecruitingPayroll(Store& store, const std::string& team) {
  return Scalar(store, "SELECT coalesce(sum(Salary), 0) FROM Coach WHERE Team = ?", team) +
         Scalar(store, "SELECT coalesce(sum(Salary), 0) FROM Scout WHERE Team = ?", team) +
         Scalar(store, "SELECT coalesce(sum(Salary), 0) FROM Trainer WHERE Team = ?", team);
}

int PerformanceBonus(Session& session, const std::string& team) {
  Store& store = session.Db();
  const int week = session.config.CurrWeek - 1;
  int bonus = GamesTerm(session, team, week, true) + GamesTerm(session, team, week, false);
  const std::optional<std::string> best = store.ScalarText(
      "SELECT Player.Team FROM AwardWinners, Player WHERE WeekNo = ? AND "
      "AwardWinners.PlayerId = Player.Id ORDER BY AwardWinners.Id LIMIT 1",
      week);
  if (best == team) bonus += 15;
  if (session.config.CurrWeek > 2) {
    bonus += 5 * Scalar(store,
                        "SELECT count(*) FROM Player WHERE Team = ? AND NBAFlag = 1 AND "
                        "PlayerYear <> 'Senior'",
                        team);
  }
  bonus -= 5 * Scalar(store, "SELECT count(*) FROM Player WHERE Team = ? AND Suspended = 1", team);
  return bonus;
}

void WeeklyRecruitPoints(Session& session, const std::string& team, RecruitingPeriod period,
                         int& points) {
  const std::optional<int> base = PeriodBase(period);
  if (!base) return;
  points = *base - RecruitingPayroll(session.Db(), team) + PerformanceBonus(session, team);
}

void SetUserWeeklyPoints(Session& session, RecruitingPeriod period) {
  const std::string& team = session.humanSchool;
  int points = 0;
  WeeklyRecruitPoints(session, team, period, points);
  points = std::max(points, kUserFloor);
  Store& store = session.Db();
  store.Exec("UPDATE TeamRecruit SET PointsAvail = ? WHERE Team = ?", points, team);
  store.Exec("UPDATE RecruitDecision SET WeekDecision = 'none' WHERE Team = ?", team);
}

int UserPointsAvail(Session& session) {
  return Scalar(session.Db(), "SELECT PointsAvail FROM TeamRecruit WHERE Team = ?",
                session.humanSchool);
}

}  // namespace courtmere
