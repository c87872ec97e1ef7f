// The 25 marks of a record book, in the order its Records row holds them:
// 15 of a season and 10 of a career (no career mark of a per-game average).
// A mark is four columns, X + "Season" (or "Career"), + "Player", + "Team",
// + "Year".
#pragma once

#include <array>
#include <string>

namespace courtmere {

struct RecordGroup {
  const char* stem;       // the record's name: "PPG", "Rebounds", "FGMade"...
  bool career;            // a career mark, else a season mark
  const char* source;     // its figure in PlayerStats / CareerPlayerStats
  const char* qualifier;  // the sample a percentage needs, else ""
  const char* label;      // as the record books screen names it
  bool percent;           // shown as a percentage
  bool average;           // a per-game figure, shown with one decimal
};

inline constexpr int kRecordGroups = 25;

const std::array<RecordGroup, kRecordGroups>& RecordGroups();

// "PPGSeason", "ReboundsCareer": the value column of a group.
std::string GroupColumn(const RecordGroup& group);

}  // namespace courtmere
