// A dynasty at the end of its regular season, and the postseason driven day
// by day in the order the day step drives it: the conference tournaments
// set up at the end of week 15 and advanced after each day of week 16, the
// national tournaments selected on its Sunday, and every day of weeks 17 to
// 20 recorded after its games.
//
// The regular season is written by hand from the fixture's seed: each school
// gets a record, a poll place with its TeamPoints and a rating index. The
// tournament games themselves are played through the engine, or, where a
// test needs only results, given scores drawn from the same seed.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "league/dynasty_fixture.h"

namespace courtmere::testing {

struct LeagueRow {
  std::string conference;
  std::string schedType;
  std::string table;
};

// A day of the calendar from the Thursday of week 16 on.
struct PostseasonDay {
  int week = 0;
  std::string day;
};

// The first column of every row `sql` reads, as a set.
std::set<std::string> ColumnSet(Store& store, const std::string& sql);

// The days of weeks 17 to 20 in calendar order.
const std::vector<PostseasonDay>& NationalDays();

class PostseasonFixture : public DynastyFixture {
 public:
  enum class Scores { kEngine, kDrawn };

  explicit PostseasonFixture(uint64_t seed = 7, Scores scores = Scores::kDrawn);

  std::vector<LeagueRow> Leagues();
  // The schedule table of the user's conference.
  std::string UserTable();

  // Plays the rows of `table` on the day that have no score yet; returns how
  // many were played.
  int PlayDay(const std::string& table, int week, const std::string& day);

  // The end of week 15: every conference's tournament set up.
  void SetupConferenceTourneys();
  // One day of week 16: every conference's games, then every advance.
  void PlayConferenceDay(const std::string& day);
  // Week 16 whole, from the set-up to the Sunday's advance.
  void RunConferenceTourneys();
  // The Sunday's selection, then every day of weeks 17 to 20 up to and
  // including `last` (all of them by default).
  void RunNationalTourneys(const PostseasonDay& last = {20, "Monday"});
  // Plays one national day and records it.
  void PlayNationalDay(const PostseasonDay& day);

 private:
  void WriteRegularSeason();
  Scores scores_;
};

}  // namespace courtmere::testing
