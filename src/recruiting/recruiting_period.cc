#include "recruiting/recruiting_period.h"

#include <algorithm>

#include "store/config.h"

namespace courtmere {

std::string PeriodName(RecruitingPeriod period) {
  switch (period) {
    case RecruitingPeriod::kDead:
      return "Dead";
    case RecruitingPeriod::kContact:
      return "Contact";
    case RecruitingPeriod::kQuiet:
      return "Quiet";
    case RecruitingPeriod::kEvaluation:
      return "Evaluation";
    case RecruitingPeriod::kSigning:
      return "Signing";
    case RecruitingPeriod::kEndOfSeason:
      return "End of Season";
    case RecruitingPeriod::kOffSeason:
      return "OffSeason";
    case RecruitingPeriod::kNone:
      break;
  }
  return "";
}

std::string PeriodLabel(RecruitingPeriod period) {
  if (period == RecruitingPeriod::kEndOfSeason) return "End of Season";
  if (period == RecruitingPeriod::kNone) return "";
  return PeriodName(period) + " Period";
}

std::string PeriodCaption(RecruitingPeriod period) {
  const std::string label = PeriodLabel(period);
  return label.empty() ? "Courtmere" : "Courtmere (" + label + ")";
}

RecruitingPeriod PeriodAfterLoad(const Config& config) {
  if (config.Stage == kStageEndSeason || config.Stage == kStageNbaDraft) {
    return RecruitingPeriod::kEndOfSeason;
  }
  if (config.Stage == kStageBeginOffSeason || config.Stage == kStagePostTraining) {
    return RecruitingPeriod::kOffSeason;
  }
  switch (const int week = config.CurrWeek; week) {
    case 1:
      return RecruitingPeriod::kDead;
    case 2:
    case 3:
    case 6:
    case 9:
    case 12:
      return RecruitingPeriod::kContact;
    case 4:
    case 5:
    case 11:
      return RecruitingPeriod::kQuiet;
    case 7:
    case 8:
    case 10:
      return RecruitingPeriod::kEvaluation;
    default:
      if (week <= 17) return RecruitingPeriod::kSigning;
      return week <= 19 ? RecruitingPeriod::kEndOfSeason : RecruitingPeriod::kOffSeason;
  }
}

std::optional<RecruitingPeriod> PeriodSetAtEndOf(int week) {
  switch (week) {
    case 1:
    case 8:
    case 11:
      return RecruitingPeriod::kContact;
    case 3:
    case 10:
      return RecruitingPeriod::kQuiet;
    case 5:
      return RecruitingPeriod::kNone;
    case 6:
    case 9:
      return RecruitingPeriod::kEvaluation;
    case 12:
      return RecruitingPeriod::kDead;
    case 15:
      return RecruitingPeriod::kSigning;
    default:
      return std::nullopt;
  }
}

std::vector<std::string> ActionsOffered(RecruitingPeriod period) {
  size_t count = 0;
  if (period == RecruitingPeriod::kQuiet) count = 1;
  if (period == RecruitingPeriod::kEvaluation) count = 3;
  if (period == RecruitingPeriod::kContact) count = 4;
  return {kRecruitActions.begin(), kRecruitActions.begin() + count};
}

bool ActionOffered(RecruitingPeriod period, std::string_view action) {
  const std::vector<std::string> offered = ActionsOffered(period);
  return std::find(offered.begin(), offered.end(), action) != offered.end();
}

std::optional<int> PeriodBase(RecruitingPeriod period) {
  switch (period) {
    case RecruitingPeriod::kContact:
      return 210;
    case RecruitingPeriod::kEvaluation:
      return 170;
    case RecruitingPeriod::kQuiet:
      return 140;
    default:
      return std::nullopt;
  }
}

int BidCeiling(std::string_view action) {
  for (size_t i = 0; i < kRecruitActions.size(); ++i) {
    if (action == kRecruitActions[i]) return static_cast<int>(i + 1) * 10;
  }
  return 0;
}

void PeriodClock::WeekEnded(int week) {
  if (const std::optional<RecruitingPeriod> next = PeriodSetAtEndOf(week)) {
    held_ = next;
    from_ = week + 1;
  }
}

// A held period from before a load or from an earlier season starts after
// the calendar's week, and gives way to the calendar's.
RecruitingPeriod PeriodClock::Current(const Config& config) const {
  if (held_ && config.Stage == kStageSeason && config.CurrWeek >= from_) return *held_;
  if (held_ && config.Stage == kStageSeasonOver && *held_ == RecruitingPeriod::kSigning) {
    return *held_;
  }
  return PeriodAfterLoad(config);
}

}  // namespace courtmere
