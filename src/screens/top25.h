// The poll screen's data (frmTop25, "TOP 25 Media Poll"): the first 25 rows
// of Ranking with their records and the points shown for them, and the line
// of schools that received votes below them.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct Top25Row {
  int Rank = 0;
  std::string Team;
  std::string Record;
  int Points = 0;  // the score times the factor of the rank, as shown
  int Previous = 0;
  bool User = false;  // the user's school
};

struct Top25 {
  std::string Title = "TOP 25 Media Poll";
  std::vector<Top25Row> Rows;
  // lblVotes: "<school> <votes>, <school> <votes>, ..." for ranks 26 on.
  std::string Votes;
};

// The points a poll score shows at a rank from 1 to 25, a whole number
// rounded half to even.
int Top25Points(int rank, double teamPoints);

// The votes a school ranked 26 or below receives; 0 past the last school the
// screen names.
int VotesBelowTop25(int rank, double teamPoints);

// Empty rows when no poll has ranked any school.
Top25 ShowTop25(Store& store, const std::string& userSchool);

}  // namespace courtmere
