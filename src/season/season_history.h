// The history steps of End Season, as the season driver calls them.
//
// The career figures, the schools' all-time records and the record books
// live in a library above the season driver; it plugs in here. While none
// is present (the default below) End Season skips those steps and their
// progress texts; the season's own figures, the team ratings and the stage
// change run either way.
#pragma once

namespace courtmere {

struct Session;

class SeasonHistory {
 public:
  virtual ~SeasonHistory() = default;

  // Whether a history library stands behind these calls.
  virtual bool Active() const { return false; }

  virtual void SaveCareerStats(Session&) {}
  // After the team ratings, so that Prestige is the new one, and before
  // the driver clears the year's titles (ClearSeasonMarks).
  virtual void SaveTeamHistory(Session&) {}
  virtual void UpdateRecords(Session&) {}
};

// The stand-in while no history library is present.
SeasonHistory& NoSeasonHistory();

}  // namespace courtmere
