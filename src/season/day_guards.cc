#include "season/day_guards.h"

#include <array>
#include <string>

#include "season/recruiting_week.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere {

namespace {

bool RecruitingPointsQuestion(SeasonRun& run) {
  const Config& c = run.session.config;
  if (c.CurrDay != "Saturday" || c.CurrWeek >= 13) return true;
  if (run.recruiting->PointsLeft(run.session) <= 0) return true;
  return run.session.ui.Ask(
      "You still have some recruiting points left, are you sure you wish to sim games and "
      "advance to the next week?");
}

// The chart's fifteen places and the inactive man, in the order checked.
constexpr std::array<const char*, 16> kChartFields = {"PG1", "PG2", "PG3", "SG1",     "SG2", "SG3",
                                                      "SF1", "SF2", "SF3", "PF1",     "PF2", "PF3",
                                                      "C1",  "C2",  "C3",  "Inactive"};

}  // namespace

std::string ChartGuardRefusal(Session& session) {
  Store& store = session.Db();
  const std::string& team = session.humanSchool;
  Rows chart = store.Query(
      "SELECT PG1, PG2, PG3, SG1, SG2, SG3, SF1, SF2, SF3, PF1, PF2, PF3, C1, C2, C3, Inactive "
      "FROM Team WHERE SchoolName = ?",
      team);
  const bool found = chart.Next();
  for (size_t i = 0; i < kChartFields.size(); ++i) {
    const int id = found ? chart.Int(static_cast<int>(i)) : 0;
    if (id == 0) {
      return "Please set the depth chart for " + team + " before trying to sim this day.";
    }
    if (i + 1 == kChartFields.size()) break;
    Rows man =
        store.Query("SELECT Redshirt, Inactive, Suspended, Health FROM Player WHERE Id = ?", id);
    if (man.Next() &&
        (man.Int(0) == 1 || man.Int(1) == 1 || man.Int(2) == 1 || man.Text(3) != "Good")) {
      return "You have a redshirt, suspended, injured or inactive player listed in your depth "
             "chart. Please correct this before simming games.";
    }
  }
  return "";
}

std::string CoachesGuardRefusal(Session& session) {
  for (const auto& [role, word] :
       {std::pair{"OffPoints", "an offensive"}, {"DefPoints", "a defensive"}}) {
    const std::string sql = std::string("SELECT Id FROM Coach WHERE ") + role + " = 1 AND Team = ?";
    if (session.Db().ScalarInt(sql, session.humanSchool)) continue;
    return std::string("Please assign ") + word + " coach for " + session.humanSchool +
           " before trying to sim this day. You can do this by going to Staff, view coaches and "
           "selecting Change Roles.";
  }
  return "";
}

namespace {

// Shows a guard's refusal; true when there is none.
bool Passes(Session& session, const std::string& problem) {
  if (problem.empty()) return true;
  session.ui.Message(problem);
  return false;
}

bool ScholarshipQuestion(Session& session) {
  const Config& c = session.config;
  if (c.CurrWeek != 15 || c.CurrDay != "Saturday") return true;
  Store& store = session.Db();
  const int64_t offered =
      store
          .ScalarInt("SELECT count(*) FROM RecruitDecision WHERE Team = ? AND Scholarship = 1",
                     session.humanSchool)
          .value_or(0);
  const int64_t allowed =
      store.ScalarInt("SELECT Scholarships FROM Team WHERE SchoolName = ?", session.humanSchool)
          .value_or(0);
  if (offered == allowed) return true;
  return session.ui.Ask(
      "Scholarships must be assigned by the end of week 15. Do you wish to proceed without "
      "selecting all of your Scholarship players? (This decision cannot be reversed)");
}

}  // namespace

bool PassDayGuards(SeasonRun& run) {
  Session& session = run.session;
  return RecruitingPointsQuestion(run) && Passes(session, ChartGuardRefusal(session)) &&
         Passes(session, CoachesGuardRefusal(session)) && ScholarshipQuestion(session);
}

}  // namespace courtmere
