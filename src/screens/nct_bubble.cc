#include "screens/nct_bubble.h"

#include <algorithm>
#include <set>

#include "league/nct_selection.h"
#include "league/tourney_field.h"
#include "store/store.h"

namespace courtmere {

namespace {

constexpr int kAtLargeCandidates = 60;

// The automatic bids: the champions crowned so far (a background
// conference's is known from the start), and for each other conference its
// best school by score.
std::set<std::string> Bids(Store& store, bool& projected) {
  std::vector<Entrant> all;
  std::set<std::string> bids;
  std::set<std::string> decided;
  for (Rows r = store.Query("SELECT SchoolName, Conference, Winner FROM Team UNION ALL "
                            "SELECT SchoolName, Conference, Winner FROM ScrubTeam");
       r.Next();) {
    all.push_back({r.Text(0), PollPoints(store, r.Text(0)), 0, {}, r.Text(1)});
    if (r.Int(2) != 1) continue;
    bids.insert(r.Text(0));
    decided.insert(r.Text(1));
  }
  ScoreAndSort(store, all);
  projected = false;
  for (const Entrant& e : all) {
    if (e.conference.empty() || !decided.insert(e.conference).second) continue;
    bids.insert(e.school);
    projected = true;
  }
  return bids;
}

// The year's bubble as the selection recorded it: at-large places 30 to 33
// and 34 to 37.
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

BubbleRow Row(Store& store, const Entrant& e, int place, bool in, const std::string& user) {
  const int rank = static_cast<int>(
      store.ScalarInt("SELECT min(TeamRanking) FROM Ranking WHERE SchoolName = ?", e.school)
          .value_or(0));
  return {place, e.school, e.conference, rank, e.score, in, e.school == user};
}

void ShowSelection(Store& store, const std::string& user, NctBubble& bubble) {
  constexpr int kLastInFrom = 30;
  std::vector<Entrant> named;
  for (const auto* list : {&bubble.LastIn, &bubble.FirstOut}) {
    for (const std::string& school : *list)
      named.push_back({school, PollPoints(store, school), 0, {}, {}});
  }
  ReadHomes(store, named);
  ScoreAndSort(store, named);  // the scores only: the order is the selection's
  for (size_t i = 0; i < 8; ++i) {
    const std::string& school = i < 4 ? bubble.LastIn[i] : bubble.FirstOut[i - 4];
    if (school.empty()) continue;
    for (const Entrant& e : named) {
      if (e.school == school) {
        bubble.Rows.push_back(Row(store, e, kLastInFrom + static_cast<int>(i), i < 4, user));
        break;
      }
    }
  }
}

}  // namespace

NctBubble ShowNctBubble(Store& store, const std::string& userSchool, int year) {
  NctBubble bubble;
  if (store.RowCount("NCTTourney") > 0) {
    bubble.Selected = true;
    ReadSelection(store, year, bubble);
    ShowSelection(store, userSchool, bubble);
    return bubble;
  }
  const std::set<std::string> bids = Bids(store, bubble.Projected);
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
