// The gate between the calendar and the main window's menus.
//
// From the store alone (HeadCoach, Team, League and Config's CurrWeek and
// Stage) the gate works out whether each menu entry it governs is open, the
// window's title, the user's school and where his conference's games are
// kept. It knows entries only by their names ("mnuFileSave"); the window owns
// captions, shortcuts and screens. An entry the gate doesn't name is open
// whenever its menu is, so a new screen behind an entry needs no change here.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

class Store;
struct Session;

// Design decision: the text behind "Contact " in the gate's two messages.
inline constexpr std::string_view kSupportContact = "the developers of Courtmere.";

struct MenuGateState {
  // Every entry the gate governs, open (true) or closed.
  std::map<std::string, bool, std::less<>> entries;
  std::string title;
  // False when the store holds no dynasty: the intro screen is shown.
  bool dynasty = false;
  std::string humanSchool;
  std::string humanConference;
  std::string humanScheduleTable;
  // The gate's messages, in the order they are shown.
  std::vector<std::string> messages;
  // The store has no Config row: the program ends after the message.
  bool fatal = false;

  // Whether the gate opens the entry; an entry it doesn't govern is open.
  bool Open(std::string_view entry) const;
};

// The menus at start-up, before any dynasty: every top menu closed but
// File > Load and File > New, which the intro screen's labels stand for.
MenuGateState StartUpMenus();

// The gate worked out from the store, with nothing changed.
MenuGateState ComputeMenuGate(Store& store);

// The gate: worked out from the store, copied to the session (the user's
// school, conference and schedule table, the calendar and the options), its
// messages shown through the session's Ui. The window then applies the state.
MenuGateState MenuGate(Session& session);

// The title for a week: "Courtmere (Contact Period)" and the like.
std::string PeriodTitle(int week);

}  // namespace courtmere
