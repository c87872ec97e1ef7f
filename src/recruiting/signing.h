// Signing day: at the end of the season every eligible recruit, best first,
// picks a school among those that bid for him. The first run weighs only
// the bids that came with a scholarship; the second the rest, then hands
// whoever is left to the most prestigious schools with room, and when the
// pool runs dry first, fills the last places with walk-ons.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

struct Session;

// A school as signing weighs it.
struct SigningSchool {
  std::string name;
  int left = 0;  // scholarships left
  std::string region;
  double prestige = 0;
  std::array<int, 6> top{};  // TopPG .. TopC at 1 .. 5
  bool user = false;
};

// A recruit as signing weighs him.
struct SigningRecruit {
  int id = 0;
  int position = 0;
  std::string recruitType, region;
  int homesick = 0;
  std::string team1, team2, team3;
};

struct Bid {
  std::string team;
  int points = 0;
};

// Whether a bidding school stays in the running for `r`: it has a
// scholarship left, and it is on his list, or he is "Exc" and it is a
// computer team or the user's with Prestige 60, or "Good" and a computer
// team or the user's with Prestige 45.
bool StaysInRunning(const SigningRecruit& r, const SigningSchool& school);

// A bidder's score: its points less its best man at his position, plus 90,
// 60 or 30 for his first, second or third choice, 15 up or down for a
// homesick recruit (above 70) by region, plus its prestige; rounded half to
// even, and 5 when it comes to 0 or less.
int BidScore(const SigningRecruit& r, const SigningSchool& school, int points);

// The school that signs `r` from `bids` (lowest points first), or nullptr:
// the best score among the schools still in the running, the earlier of
// equal scores; with none in the running, the first school of his list with
// a scholarship left.
SigningSchool* ChooseSchool(const SigningRecruit& r, const std::vector<Bid>& bids,
                            std::vector<SigningSchool>& schools);

// One run of signing (`withScholarship` 1, then 0).
void SignRecruits(Session& session, int withScholarship);

// Both runs, as the end of the season calls them.
void SignAllRecruits(Session& session);

}  // namespace courtmere
