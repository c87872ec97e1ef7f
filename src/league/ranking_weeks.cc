#include "league/ranking_weeks.h"

#include <algorithm>

#include "store/config.h"

namespace courtmere {

namespace {

constexpr int kCriFirstWeek = 5;
constexpr int kLastRankedWeek = 16;

// The last week whose end has passed; out of the stage Season the whole
// regular season has.
int LastWeekEnded(const Config& c) {
  if (c.Stage != kStageSeason) return kLastRankedWeek;
  return std::clamp(c.CurrWeek - 1, 0, kLastRankedWeek);
}

}  // namespace

bool PollAtEndOf(int week) {
  return week >= 1 && week <= kLastRankedWeek && week != kCriFirstWeek;
}

int LatestPollWeek(const Config& config) {
  int week = LastWeekEnded(config);
  while (week > 0 && !PollAtEndOf(week)) --week;
  return week;
}

int LatestCriWeek(const Config& config) {
  const int week = LastWeekEnded(config);
  return week >= kCriFirstWeek ? week : 0;
}

}  // namespace courtmere
