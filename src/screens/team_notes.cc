#include "screens/team_notes.h"

#include <algorithm>

#include "store/store.h"

namespace courtmere {

namespace {

// A note has no subject of its own: its first line stands for one, cut to fit
// a grid's column.
std::string FirstLine(const std::string& text) {
  constexpr size_t kLongest = 70;
  std::string line = text.substr(0, text.find_first_of("\r\n"));
  if (line.size() > kLongest) line = line.substr(0, kLongest - 3) + "...";
  return line;
}

}  // namespace

std::vector<TeamNote> TeamNotes(Store& store) {
  std::vector<TeamNote> notes;
  for (Rows rows = store.Query("SELECT Week, Type, Message FROM Messages ORDER BY Id");
       rows.Next();) {
    const std::string text = rows.Text(2);
    notes.push_back({rows.Int(0), rows.Text(1), FirstLine(text), text});
  }
  for (Rows rows = store.Query("SELECT Week, Sender, Subject, Text FROM InboxMessage ORDER BY Id");
       rows.Next();) {
    notes.push_back({rows.Int(0), rows.Text(1), rows.Text(2), rows.Text(3)});
  }
  std::stable_sort(notes.begin(), notes.end(),
                   [](const TeamNote& a, const TeamNote& b) { return a.Week > b.Week; });
  return notes;
}

}  // namespace courtmere
