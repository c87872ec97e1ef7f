// The recruiting events of the season's weeks, as the day step calls them.
//
// Recruiting lives in a library above the season driver; it plugs in here.
// The day step asks Active() first: while no recruiting library is present
// (the default below), every recruiting event of the calendar is skipped,
// with its progress text and its letter to the user, so that nothing claims
// to have run what did not. The non-recruiting work of the same weeks runs
// either way.
#pragma once

namespace courtmere {

struct Session;

class RecruitingWeek {
 public:
  virtual ~RecruitingWeek() = default;

  // Whether a recruiting library stands behind these calls.
  virtual bool Active() const { return false; }
  // Whether the computer teams' recruiting stands behind ComputerRecruiting.
  virtual bool ComputerActive() const { return Active(); }
  // Whether the scouts' reports, the test scores and the signing stand
  // behind their calls.
  virtual bool SigningActive() const { return Active(); }

  // The end of `week` has set the main window's caption; the recruiting
  // period follows it (the calendar still stands on `week`).
  virtual void WeekEnded(Session&, int /*week*/) {}

  // The user's recruiting points left this week (the Saturday question).
  virtual int PointsLeft(Session&) { return 0; }

  // Computer recruiting at the end of `week`: the target lists in week 1,
  // the weekly bids from week 2 to 12 (and in week 5's step). Under the
  // auto-sim (`autoSim`) the user's school recruits as a computer team.
  virtual void ComputerRecruiting(Session&, int /*week*/, bool /*autoSim*/) {}
  // WeekDecision back to "none" on every RecruitDecision row.
  virtual void ClearWeekDecisions(Session&) {}
  // WeekBid back to 0 on every RecruitDecision row.
  virtual void ClearWeekBids(Session&) {}
  // The scouts' estimates of the top rival bids (weeks 6 to 12).
  virtual void EstimateTopBids(Session&) {}
  // The user's budget for the week that has just begun (weeks up to 13).
  virtual void SetWeeklyPoints(Session&) {}

  virtual void DeclareNBARecruits(Session&) {}
  virtual void ScoutRecruitReport(Session&, int /*recruit*/) {}
  virtual void RecruitInterestReport(Session&) {}
  virtual void UpdateRecruitStats(Session&, int /*update*/) {}
  virtual void FindBackupRecruit(Session&) {}
  virtual void RecruitTestScores(Session&, int /*report*/) {}

  // The recruits' decisions at the end of the season, in their two runs.
  virtual void SignRecruits(Session&) {}
};

// The stand-in while no recruiting library is present.
RecruitingWeek& NoRecruiting();

}  // namespace courtmere
