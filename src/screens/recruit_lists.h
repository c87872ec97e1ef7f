// The recruit pool as its screens list it (frmRecRegion, frmViewRecruit,
// frmRecruit): the recruits of a region, those who name the user's school,
// the magazines' ranks by position and the national top 50. Each row shows
// what the user's scouts see (grades), never the hidden ratings.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;
struct Session;

inline constexpr const char* kRecruitListColumns[] = {
    "Id",  "Name", "Pos", "Ht",  "Home Town", "Type", "Pos Rank", "Top 50", "Ath",     "Scr",
    "Sht", "Out",  "Reb", "PDf", "IDf",       "Hnd",  "Pas",      "Pot",    "Schools", "Status"};

struct RecruitListRow {
  int Id = 0;
  std::string Name;
  std::string Pos;
  std::string Height;
  std::string HomeTown;
  std::string RecruitType;
  int PosRank = 99;  // 99 when unranked, so that the ranked sort first
  int Top50Rank = 99;
  std::vector<std::string> Grades;  // athletic to potential, as on the card
  std::string Schools;              // Team1, Team2, Team3 joined by ", "
  std::string Status;               // the school he chose, "NBA", "Ineligible", or empty
  bool Listed = false;              // on the user's list of recruits
};

struct RecruitList {
  std::string Title;
  std::vector<RecruitListRow> Rows;
};

// "<region> Region Recruits": every recruit of the region, the best ranked
// first.
RecruitList RegionRecruits(Session& session, const std::string& region);

// "Recruits Listing <school> As Team1" (or Team2, Team3): `slot` 1 to 3.
RecruitList InterestedRecruits(Session& session, int slot);

// "<position> Recruits in the Nation": the position's PosRank 1 to 15.
RecruitList PositionRecruits(Session& session, int position);

// "Top 50 Recruits in the Nation".
RecruitList Top50Recruits(Session& session);

// Every recruit of the pool in id order, for the one-by-one browser.
std::vector<int> PoolIds(Store& store);

// The four regions, and a position's name as the lists' titles use it
// ("Point Guard").
inline constexpr const char* kRecruitRegions[] = {"East", "Midwest", "South", "West"};
std::string PositionTitle(int position);

}  // namespace courtmere
