// A recruit's card, shown on a click in the recruiting screens: who he is,
// where he plays, what the user's scouts grade him, what he wants of a
// school, his high-school figures, the scouts' report, the schools he likes
// and the magazines' ranks.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace courtmere {

struct Session;

struct RecruitCard {
  int Id = 0;
  std::string Name;
  std::string HomeTown;
  std::string SchoolLabel;  // "High School:" or "Junior Col.:"
  std::string School;       // the school, or "<Area> JC (<school>)"
  std::string Position;
  std::string Height;
  std::vector<std::pair<std::string, std::string>> Grades;  // label, letter
  int Homesick = 0;
  int PlayWinner = 0;
  double PPG = 0, APG = 0, RPG = 0, TOs = 0, SPG = 0, GPA = 0;
  std::string ScoutingReport;
  std::vector<std::string> Schools;  // Team1 to Team3
  std::string PosRank;               // "No. 3", empty when unranked
  std::string Top50Rank;             // "No. 12 Overall", empty when unranked
  // The school he signed with ("NBA" for a man gone to the draft); empty
  // until he chooses.
  std::string TeamChoice;
};

// Nothing when the id is no recruit.
std::optional<RecruitCard> LoadRecruitCard(Session& session, int playerId);

}  // namespace courtmere
