// The award screens' data: the players of the week (frmPlayerWeek), a
// conference's teams (frmACTeam) and the nation's (frmAATeam), read from
// AwardWinners with each man's name, school and position.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct AwardRow {
  int WeekNo = 0;  // the week, the slot or the position, by the award
  int PlayerId = 0;
  std::string Name;
  std::string Team;
  // "PG" to "C": the position the honour names where WeekNo holds one (the
  // players of the year, the All America teams), else the man's own.
  std::string Position;
  double PPG = 0;
  double RPG = 0;
  double APG = 0;
  double SPG = 0;
  double BPG = 0;
  double TOPG = 0;
  bool User = false;  // a man of the user's school
};

// One honour's list under its heading.
struct AwardList {
  std::string Title;
  std::vector<AwardRow> Rows;
};

// Every player of the week so far, by week; one week's when `week` is above 0.
AwardList PlayersOfWeek(Store& store, const std::string& userSchool, int week = 0);

// A conference's all-conference team, its player of the year and its
// all-freshman team, in that order; lists without winners are left out.
std::vector<AwardList> ConferenceAwards(Store& store, const std::string& userSchool,
                                        const std::string& conference);

// The national player of the year, the three All America teams and the
// national freshman team; lists without winners are left out.
std::vector<AwardList> NationalAwards(Store& store, const std::string& userSchool);

}  // namespace courtmere
