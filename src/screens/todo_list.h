// What the user should do next, worked out from the stage of his year, the
// guards Sim Day would meet and the tasks still open: each item names the
// menu entry whose screen or flow does it.
//
// The list names every task the rules give; the window shows an item only
// while its entry can be used, so a task whose screen does not exist, or is
// closed at this point of the year, is not offered.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

struct Session;

struct TodoItem {
  std::string Text;
  std::string Entry;  // the menu entry, "mnuStaffViewCoaches"
};

// In the order the user should take them; empty without a dynasty.
std::vector<TodoItem> TodoList(Session& session);

}  // namespace courtmere
