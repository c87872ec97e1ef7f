#include "store/inbox.h"

#include "store/session.h"

namespace courtmere {

void AddInboxMessage(Session& session, std::string_view sender, std::string_view subject,
                     std::string_view text) {
  session.Db().Exec(
      "INSERT INTO InboxMessage (Week, Year, Sender, Subject, Text) VALUES (?, ?, ?, ?, ?)",
      session.inbox.Week, session.config.CurrYear, sender, subject, text);
  session.inbox.Add(sender, subject, text);
}

void BringInboxUpTo(Session& session, int week) {
  if (session.inbox.Week == week) return;
  session.inbox.Week = week;
  session.inbox.Messages.clear();
}

std::vector<InboxMessage> InboxOfWeek(Store& store, int week) {
  std::vector<InboxMessage> letters;
  for (Rows rows = store.Query(
           "SELECT Sender, Subject, Text FROM InboxMessage WHERE Week = ? ORDER BY Id", week);
       rows.Next();) {
    letters.push_back({rows.Text(0), rows.Text(1), rows.Text(2)});
  }
  return letters;
}

void LoadInbox(Session& session, int week) {
  session.inbox.Week = week;
  session.inbox.Messages = InboxOfWeek(session.Db(), week);
}

void ClearInbox(Session& session, int week) {
  session.Db().Exec("DELETE FROM InboxMessage");
  session.inbox.Week = week;
  session.inbox.Messages.clear();
}

}  // namespace courtmere
