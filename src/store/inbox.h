// The user's inbox: the messages of the current week, each with a sender, a
// subject and a text. The list lives in the session, not in the store; the
// letters that must outlive the week are also written to the Messages table by
// the flows that send them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct InboxMessage {
  std::string Sender;
  std::string Subject;
  std::string Text;
};

struct Inbox {
  int Week = 0;  // the week the list belongs to
  std::vector<InboxMessage> Messages;

  void Add(std::string_view sender, std::string_view subject, std::string_view text) {
    Messages.push_back({std::string(sender), std::string(subject), std::string(text)});
  }
  // A new week starts with an empty list.
  void BringUpTo(int week) {
    if (week != Week) Messages.clear();
    Week = week;
  }
};

}  // namespace courtmere
