// The main window's menu tree: every entry by its name, under its menu, with
// its caption (the "&" marks the accelerator) and its shortcut key.
#pragma once

#include <vector>

namespace courtmere::app {

struct MenuEntry {
  const char* name;
  const char* parent;  // null for a top menu
  const char* caption;
  const char* shortcut;  // "" for none
};

// In menu order; an entry that is another entry's parent is a submenu.
const std::vector<MenuEntry>& MenuTree();

}  // namespace courtmere::app
