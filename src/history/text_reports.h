// The three text reports: the year's draft, a school's statistics and a
// school's roster, each laid out in fixed columns under its own headings.
#pragma once

#include <string>

namespace courtmere {

class Store;
struct Session;

// The text of "<year>MochDraft.txt": every pick of NBADraft in order.
std::string DraftReport(Store& store);

// The text of "<school>stats<year>.txt": the totals and the averages of
// every player of the school. During the season (stages "Season" and
// "Season Over") the figures come from the season's statistics in memory,
// which are newer than PlayerStats; otherwise from PlayerStats.
std::string TeamStatsReport(Session& session, const std::string& school);

// The text of "<school>Roster<year>.txt": ratings by grade, then home towns.
std::string RosterReport(Store& store, const std::string& school, int year);

}  // namespace courtmere
