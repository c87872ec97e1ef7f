// The user's inbox. Every letter to the user is kept in the store
// (InboxMessage) with the week whose list it joined, so that the inbox
// survives a save and a load and any week of the season can be read again.
// The session holds the current week's list, the view the inbox window
// shows; the day step starts a new list when the week changes.
//
// Design decision: the table holds the running season's letters. A new
// season starts with an empty inbox, as the old season's weekly lists would
// otherwise mix with the new ones under the same week numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

class Store;
struct Session;

struct InboxMessage {
  std::string Sender;
  std::string Subject;
  std::string Text;

  bool operator==(const InboxMessage&) const = default;
};

// The list the inbox window shows: the letters of one week, oldest first.
struct Inbox {
  int Week = 0;
  std::vector<InboxMessage> Messages;

  // Appends to the list only; letters are sent with AddInboxMessage, which
  // keeps them in the store as well.
  void Add(std::string_view sender, std::string_view subject, std::string_view text) {
    Messages.push_back({std::string(sender), std::string(subject), std::string(text)});
  }
};

// Sends a letter: it joins the current list and is kept in the store under
// the list's week and the current year.
void AddInboxMessage(Session& session, std::string_view sender, std::string_view subject,
                     std::string_view text);

// Starts the list of `week` when the list shown belongs to another week.
void BringInboxUpTo(Session& session, int week);

// The letters kept for a week of the season, oldest first.
std::vector<InboxMessage> InboxOfWeek(Store& store, int week);

// Reads the list of `week` from the store into the session (after a load,
// or when a command-line run starts).
void LoadInbox(Session& session, int week);

// Empties the inbox, kept letters and list alike, at the start of a
// season; the list belongs to `week`.
void ClearInbox(Session& session, int week);

}  // namespace courtmere
