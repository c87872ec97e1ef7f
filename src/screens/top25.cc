#include "screens/top25.h"

#include <fmt/format.h>

#include <array>

#include "platform/numeric.h"
#include "screens/school_record.h"
#include "store/store.h"

namespace courtmere {

namespace {

constexpr int kShownRanks = 25;

// The poll screen shows a score times this factor, by rank.
constexpr std::array<double, kShownRanks + 1> kPointsFactor = {
    0,   3.4, 3.3, 3.2, 3.1, 3.0, 2.8, 2.6, 2.5, 2.3, 2.0, 1.9, 1.7,
    1.6, 1.5, 1.4, 1.3, 1.2, 1.1, 1.0, 0.9, 0.8, 0.7, 0.6, 0.5, 0.4};

// Design decision: the vote line names ten schools, ranks 26 to 35; rank 26
// gets 0.35 of its score and each rank after it 0.03 less.
constexpr int kLastVotedRank = 35;
constexpr double kFirstVoteFactor = 0.35;
constexpr double kVoteFalloff = 0.03;

}  // namespace

int Top25Points(int rank, double teamPoints) {
  if (rank < 1 || rank > kShownRanks) return 0;
  return CInt(teamPoints * kPointsFactor[rank]);
}

int VotesBelowTop25(int rank, double teamPoints) {
  if (rank <= kShownRanks || rank > kLastVotedRank) return 0;
  return CInt(teamPoints * (kFirstVoteFactor - kVoteFalloff * (rank - kShownRanks - 1)));
}

// Design decision: a row without a rank (a school added since the last poll,
// or every school before the first) is not shown.
Top25 ShowTop25(Store& store, const std::string& userSchool) {
  Top25 screen;
  for (Rows r = store.Query("SELECT SchoolName, TeamRanking, Previous, TeamPoints FROM Ranking "
                            "WHERE TeamRanking > 0 AND TeamRanking < 50 ORDER BY TeamRanking ASC");
       r.Next();) {
    const std::string school = r.Text(0);
    const int rank = r.Int(1);
    if (screen.Rows.size() < kShownRanks) {
      screen.Rows.push_back({rank, school, SchoolRecord(store, school),
                             Top25Points(static_cast<int>(screen.Rows.size()) + 1, r.Double(3)),
                             r.Int(2), school == userSchool});
    } else if (rank <= kLastVotedRank) {
      if (!screen.Votes.empty()) screen.Votes += ", ";
      screen.Votes += fmt::format("{} {}", school, VotesBelowTop25(rank, r.Double(3)));
    }
  }
  return screen;
}

}  // namespace courtmere
