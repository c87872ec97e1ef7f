// The draft's two lists: the players leaving early (News > Players Leaving
// Early), each with the reason the papers give, and the draft's results
// ("<year> NBA Draft", News > Check NBA Draft Results).
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct EarlyLeaver {
  std::string Name;
  std::string PlayerYear;
  std::string Team;
  std::string Reason;
};

// The underclassmen by school, then the recruits by region.
std::vector<EarlyLeaver> PlayersLeavingEarly(Store& store);

// The reason of an underclassman, and of a recruit.
std::string CollegeLeaverReason(const std::string& name, int id, double gpa, double overall);
std::string RecruitLeaverReason(const std::string& name, int id, double gpa,
                                const std::string& recruitType);

struct DraftPick {
  int Pick = 0;
  std::string Team, Name, Height, Position, School;
  double PPG = 0, RPG = 0, APG = 0;
};

// ShowDraft: the picks in order.
std::vector<DraftPick> ShowDraft(Store& store);

// "<year> NBA Draft".
std::string DraftTitle(int year);

}  // namespace courtmere
