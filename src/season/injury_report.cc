#include "season/injury_report.h"

#include <string>
#include <vector>

#include "store/session.h"

namespace courtmere {

namespace {

struct Named {
  int id;
  std::string name;
};

// The user's men in `health` whose InjuryUpdate is `told`, marked as told
// the other way.
std::vector<Named> TakeNews(Session& session, const char* sql, int nowTold) {
  Store& store = session.Db();
  std::vector<Named> men;
  for (Rows r = store.Query(sql, session.humanSchool); r.Next();) {
    men.push_back({r.Int(0), r.Text(1)});
  }
  for (const Named& m : men) {
    store.Exec("UPDATE Player SET InjuryUpdate = ? WHERE Id = ?", nowTold, m.id);
  }
  return men;
}

std::string Section(const std::string& heading, const std::vector<Named>& men) {
  std::string text = heading;
  for (const Named& m : men) text += "\n" + m.name;
  return text;
}

}  // namespace

void InjuryReport(Session& session) {
  const std::string& team = session.humanSchool;
  const std::vector<Named> hurt = TakeNews(session,
                                           "SELECT Id, Name FROM Player WHERE Team = ? AND Health "
                                           "<> 'Good' AND InjuryUpdate = 0 ORDER BY rowid",
                                           1);
  const std::vector<Named> healed = TakeNews(session,
                                             "SELECT Id, Name FROM Player WHERE Team = ? AND "
                                             "Health = 'Good' AND InjuryUpdate = 1 ORDER BY rowid",
                                             0);
  std::string text;
  if (!hurt.empty()) {
    text = Section("The following " + team +
                       " players have been injured. Check the injury log for more details on "
                       "their severity.",
                   hurt);
  }
  if (!healed.empty()) {
    if (!text.empty()) text += "\n\n";
    text += Section("The following " + team + " players are now healthy:", healed);
  }
  if (text.empty()) return;
  AddInboxMessage(session, "Trainer", "Injury Update", text);
  session.Db().Exec("INSERT INTO Messages (Week, Type, Message) VALUES (?, 'Injury', ?)",
                    session.config.CurrWeek, text);
}

}  // namespace courtmere
