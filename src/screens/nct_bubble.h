// NCT Bubble Watch: the schools nearest the cut for the NCT's at-large
// places, by the selection's own score (CRIValue * 100 + the poll's
// TeamPoints), and once the field is chosen the year's last four in and
// first four out as the selection recorded them.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

class Store;

struct BubbleRow {
  int Place = 0;  // among the at-large candidates, by score
  std::string School;
  std::string Conference;
  int PollRank = 0;
  double Score = 0;
  bool In = false;
  bool User = false;
};

struct NctBubble {
  // True once the field is chosen: LastIn and FirstOut hold the selection's
  // bubble, and Rows shows them at their at-large places 30 to 37.
  bool Selected = false;
  int AtLarge = 0;         // the at-large places
  int Bids = 0;            // the automatic bids, held or projected
  bool Projected = false;  // some conference champions are not known yet
  std::vector<BubbleRow> Rows;
  std::array<std::string, 4> LastIn;
  std::array<std::string, 4> FirstOut;
};

// The places shown on each side of the cut.
inline constexpr int kBubbleReach = 8;

// Design decision: until a conference has crowned its champion, its best
// school by the selection score stands in for him and takes its automatic
// bid; the at-large list is then made as the selection makes it, from the
// first 60 other schools of the poll.
NctBubble ShowNctBubble(Store& store, const std::string& userSchool, int year);

}  // namespace courtmere
