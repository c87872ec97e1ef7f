// The status text of a long flow: the progress window's caption, then a
// moment for the window system, so the text shows before the step's work.
#pragma once

#include <string_view>

#include "store/session.h"

namespace courtmere {

inline void ShowStatus(Session& session, std::string_view caption) {
  session.ui.ShowProgress(caption);
  session.ui.Pump();
}

}  // namespace courtmere
