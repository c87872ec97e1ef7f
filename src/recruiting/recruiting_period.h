// The recruiting period of a week: what the user may do with his recruits
// and how many points the week brings. The period is not stored. A running
// game sets it at the end of certain weeks; after a load it is worked out
// from the calendar alone. The two ways do not agree everywhere (weeks 6 and
// 13 to 15), and each is kept as it is.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct Config;

enum class RecruitingPeriod {
  kDead,
  kContact,
  kQuiet,
  kEvaluation,
  kSigning,
  kEndOfSeason,
  kOffSeason,
  // Design decision: the step of week 5 only publishes the Contact caption
  // with the first rating index; the period the rules read is set again at
  // the end of week 6. Week 6 of a running game therefore has no period at
  // all: no actions and the floor of 10 points, while the same week after a
  // load is a Contact week.
  kNone,
};

// The four actions of a week, as RecruitDecision stores them.
inline constexpr std::array<const char*, 4> kRecruitActions = {"Call", "Assistant", "Visit",
                                                               "CampusVisit"};

// "Contact", "Evaluation", "Quiet", "Dead", "Signing", "End of Season",
// "OffSeason"; empty for kNone.
std::string PeriodName(RecruitingPeriod period);

// The period as the window names it: "Contact Period" and so on, "End of
// Season"; empty for kNone.
std::string PeriodLabel(RecruitingPeriod period);

// The main window's caption in the period: "Courtmere (Contact Period)" and
// so on, "Courtmere (End of Season)".
std::string PeriodCaption(RecruitingPeriod period);

// The period a loaded dynasty stands in: by CurrWeek in the season, else by
// the stage (End of Season until the offseason begins, then OffSeason).
RecruitingPeriod PeriodAfterLoad(const Config& config);

// The period the end of `week` opens in a running game, if it changes one.
std::optional<RecruitingPeriod> PeriodSetAtEndOf(int week);

// The actions the period offers, in the order the screen lists them.
std::vector<std::string> ActionsOffered(RecruitingPeriod period);
bool ActionOffered(RecruitingPeriod period, std::string_view action);

// The weekly base of points: 210 Contact, 170 Evaluation, 140 Quiet; none
// in any other period.
std::optional<int> PeriodBase(RecruitingPeriod period);

// The highest bid the screen offers for an action (Call 10, Assistant 20,
// Visit 30, CampusVisit 40); 0 for a word that is no action.
int BidCeiling(std::string_view action);

// The period a running game holds: set at the ends of weeks, and worked out
// from the calendar when it was set for another season or not at all (after
// a load).
class PeriodClock {
 public:
  // The end of `week` has run (the calendar still stands on it).
  void WeekEnded(int week);
  RecruitingPeriod Current(const Config& config) const;

 private:
  std::optional<RecruitingPeriod> held_;
  int from_ = 0;  // the first week the held period covers
};

}  // namespace courtmere
