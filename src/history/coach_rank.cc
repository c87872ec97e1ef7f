#include "history/coach_rank.h"

#include <fmt/format.h>

#include <algorithm>

#include "history/tourney_result.h"
#include "store/store.h"

namespace courtmere {

namespace {

constexpr size_t kSorted = 60;
constexpr int kRanked = 10;

double WinnerPoints(int winner) {
  switch (winner) {
    case 1:
      return 3;
    case 2:
      return 12;
    case 3:
      return 16;
    default:
      return 0;
  }
}

std::string CoachName(Store& store, const std::string& school) {
  return store.ScalarText("SELECT Name FROM HeadCoach WHERE Team = ?", school)
      .value_or(school + " Head Coach");
}

// The school's NCT line when it held a seed this year.
std::string TeamResult(Store& store, const std::string& school) {
  const bool seeded =
      store
          .ScalarInt(
              "SELECT count(*) FROM NCTTourney WHERE SchoolName = ? AND Seed BETWEEN 1 "
              "AND 16",
              school)
          .value_or(0) > 0;
  if (!seeded) return "Finished close to .500";
  const TourneyResult r = ReadTourneyResult(store, school, std::string(), {});
  return NctSummary(r.wins);
}

}  // namespace

double CoachScoreOf(const ScoreMarks& m) {
  double score = 4 * m.prestigeGain + WinnerPoints(m.winner);
  if (m.nctFinalFour) score += 7;
  if (m.actWinner) score += 1;
  if (m.nctWinsThisYear > 0) score += 5 * m.nctWinsAllTime;
  return score;
}

void WriteCoachRanks(Store& store, const std::vector<CoachScore>& scores) {
  std::vector<CoachScore> list(
      scores.begin(), scores.begin() + static_cast<long>(std::min(kSorted, scores.size())));
  // A selection sort that takes the first of equal scores: the earlier
  // school stays in front.
  for (size_t i = 0; i < list.size(); ++i) {
    size_t best = i;
    for (size_t j = i + 1; j < list.size(); ++j) {
      if (list[j].score > list[best].score) best = j;
    }
    if (best != i) {
      CoachScore taken = list[best];
      list.erase(list.begin() + static_cast<long>(best));
      list.insert(list.begin() + static_cast<long>(i), taken);
    }
  }
  store.Exec("UPDATE Ranking SET CoachRank = 0");
  for (int n = 1; n <= kRanked && n <= static_cast<int>(list.size()); ++n) {
    store.Exec("UPDATE Ranking SET CoachRank = ? WHERE SchoolName = ?", n, list[n - 1].school);
  }
}

std::vector<TopCoachRow> TopCoaches(Store& store) {
  std::vector<TopCoachRow> rows;
  for (Rows r = store.Query(
           "SELECT Ranking.SchoolName, TotalWins, TotalLosses FROM TeamStats, Ranking WHERE "
           "TeamStats.SchoolName = Ranking.SchoolName AND CoachRank > 0 ORDER BY CoachRank ASC "
           "LIMIT 10");
       r.Next();) {
    const std::string school = r.Text(0);
    rows.push_back({CoachName(store, school), school, fmt::format("{}-{}", r.Int(1), r.Int(2)),
                    TeamResult(store, school)});
  }
  return rows;
}

}  // namespace courtmere
