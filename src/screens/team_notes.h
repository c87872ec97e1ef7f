// frmNews, "Team Notes": the user's archive of the running season, the notes
// the season writes to Messages (the team's letters, the injury reports) and
// the letters kept from the inbox (InboxMessage), newest week first.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct TeamNote {
  int Week = 0;
  std::string From;     // the inbox letter's sender, or the note's type
  std::string Subject;  // the letter's subject, or the note's first line
  std::string Text;
};

// Every note and kept letter, newest week first; within a week the notes
// before the letters, each in the order written.
std::vector<TeamNote> TeamNotes(Store& store);

}  // namespace courtmere
