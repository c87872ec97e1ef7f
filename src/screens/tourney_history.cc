#include "screens/tourney_history.h"

#include <algorithm>

#include "store/store.h"

namespace courtmere {

namespace {

std::string Joined(const Rows& r, int first) {
  std::string text;
  for (int col = first; col < first + 4; ++col) {
    if (r.Text(col).empty()) continue;
    if (!text.empty()) text += ", ";
    text += r.Text(col);
  }
  return text;
}

}  // namespace

std::vector<std::array<std::string, 7>> TourneyHistory(Store& store, const std::string& table) {
  std::vector<std::array<std::string, 7>> rows;
  // Table names can't be bound; only the two history tables are read.
  if (table != "NCTHistory" && table != "ACTHistory") return rows;
  for (Rows r = store.Query("SELECT Year, Champ, FinalFour1, FinalFour2, FinalFour3, FinalFour4, "
                            "LastIn1, LastIn2, LastIn3, LastIn4, FirstOut1, FirstOut2, FirstOut3, "
                            "FirstOut4 FROM " +
                            table + " ORDER BY Id ASC");
       r.Next();) {
    // Design decision: the champion heads the row and the other three of
    // the Final Four follow it in their stored order.
    std::vector<std::string> others;
    for (int col = 2; col <= 5; ++col) {
      if (r.Text(col) != r.Text(1) && others.size() < 3) others.push_back(r.Text(col));
    }
    others.resize(3);
    rows.push_back(
        {r.Text(0), r.Text(1), others[0], others[1], others[2], Joined(r, 6), Joined(r, 10)});
  }
  return rows;
}

}  // namespace courtmere
