// A school's history: its seasons year by year (record, final poll rank,
// conference title, how far it went in the NCT or ACT), its all-time
// totals, and its alumni in the professional league.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct SchoolSeason {
  int year = 0;
  int wins = 0, losses = 0, confWins = 0, confLosses = 0;
  int pollRank = 0;  // 0: unranked in the final poll
  bool confChamp = false;
  std::string nctRecord, actRecord, summary;
};

struct SchoolTotals {
  int wins = 0, games = 0, confChamps = 0;
  int nctApps = 0, nctWins = 0, nctLosses = 0, nctFinalFours = 0, nctChamps = 0;
  int actApps = 0, actWins = 0, actLosses = 0, actFinalFours = 0, actChamps = 0;
};

struct Alumnus {
  std::string name, position, draft;
  int yearLeft = 0;
  double ppg = 0, rpg = 0, apg = 0;
};

struct SchoolHistory {
  std::string school;
  std::vector<SchoolSeason> seasons;  // oldest first
  SchoolTotals totals;
  std::vector<Alumnus> alumni;  // newest first
};

// Nothing for a school the dynasty doesn't have (an empty `school` field).
SchoolHistory ReadSchoolHistory(Store& store, const std::string& school);

// "24-8 (.750)": an all-time record with its winning fraction.
std::string AllTimeRecord(const SchoolTotals& totals);

}  // namespace courtmere
