#include "screens/nct_bubble.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "league/nct_selection.h"
#include "league/tourney_field.h"
#include "store/store.h"

namespace courtmere {

namespace {

constexpr int kAtLargeCandidates = 60;

// Each conference's best school by score.
std::set<std::string> ProjectedChampions(Store& store) {
  std::vector<Entrant> all =
      PollCandidates(store, INT32_MAX, [](const std::string&) { return false; });
  ReadHomes(store, all);
  ScoreAndSort(store, all);
  std::set<std::string> conferences;
  std::set<std::string> champions;
  for (const Entrant& e : all) {
    if (e.conference.empty() || !conferences.insert(e.conference).second) continue;
    champions.insert(e.school);
  }
  return champions;
}

void ReadSelection(Store& store, int year, NctBubble& bubble) {
  Rows r = store.Query(
      "SELECT LastIn1, LastIn2, LastIn3, LastIn4, FirstOut1, FirstOut2, FirstOut3, FirstOut4 "
      "FROM NCTHistory WHERE Year = ? ORDER BY Id DESC LIMIT 1",
      year);
  if (!r.Next()) return;
  for (int i = 0; i < 4; ++i) {
    bubble.LastIn[static_cast<size_t>(i)] = r.Text(i);
    bubble.FirstOut[static_cast<size_t>(i)] = r.Text(4 + i);
  }
}

}  // namespace

NctBubble ShowNctBubble(Store& store, const std::string& userSchool, int year) {
  NctBubble bubble;
  if (store.RowCount("NCTTourney") > 0) {
    bubble.Selected = true;
    ReadSelection(store, year, bubble);
    return bubble;
  }
  std::set<std::string> bids;
  for (const Entrant& e : AutomaticBids(store)) bids.insert(e.school);
  bubble.Projected = bids.empty();
  if (bubble.Projected) bids = ProjectedChampions(store);
  bubble.Bids = static_cast<int>(bids.size());
  bubble.AtLarge = std::max(0, kNctField - bubble.Bids);
  std::vector<Entrant> candidates = PollCandidates(
      store, kAtLargeCandidates, [&](const std::string& s) { return bids.count(s) > 0; });
  ReadHomes(store, candidates);
  ScoreAndSort(store, candidates);
  const int first = std::max(1, bubble.AtLarge - kBubbleReach + 1);
  const int last = std::min(static_cast<int>(candidates.size()), bubble.AtLarge + kBubbleReach);
  for (int place = first; place <= last; ++place) {
    const Entrant& e = candidates[static_cast<size_t>(place - 1)];
    const int rank = static_cast<int>(
        store.ScalarInt("SELECT min(TeamRanking) FROM Ranking WHERE SchoolName = ?", e.school)
            .value_or(0));
    bubble.Rows.push_back({place, e.school, e.conference, rank, e.score, place <= bubble.AtLarge,
                           e.school == userSchool});
  }
  return bubble;
}

}  // namespace courtmere
