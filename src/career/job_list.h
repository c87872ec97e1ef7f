// The schools that will have the user as their head coach (frmCoach).
//
// A school takes a coach whose rating beats its prestige, and he rises at
// most ten points of prestige above his school's; a school whose coach is of
// the year's top ten has no opening. A fired coach, whose school counts as
// prestige 0, who finds no school is offered the three schools of lowest
// prestige, other than the one that fired him.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace courtmere {

class Store;
struct Session;

struct JobOffer {
  std::string School;
  std::string WinPct;       // ".000", empty before the school's first game
  std::string Prestige;     // the band's label
  std::string Expectation;  // the band's text
  int Expectations = 0;     // the band's number, unseen
  double SchoolPrestige = 0;
};

inline constexpr size_t kMostOffers = 99;

std::vector<JobOffer> LoadJobList(Store& store);

// Why the job list is closed to the user now, or nothing when it is open: it
// opens between the draft and the start of the offseason, and closes for the
// year once he has changed jobs.
std::optional<std::string> JobListClosed(Session& session);

}  // namespace courtmere
