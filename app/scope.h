// The national and the conference menus open the same display screens: the
// nation's, or one conference's (the user's at first, any other by a list).
#pragma once

#include <QString>
#include <string>

class QComboBox;
class QWidget;

namespace courtmere {
struct Session;
}

namespace courtmere::app {

enum class Scope { kNational, kConference };

// The list of the dynasty's conferences, the user's chosen.
QComboBox* ConferenceList(Session& session, QWidget* parent);

// "frmX0" for the nation and "frmX1" for a conference: the two stay apart.
QString ScopedKey(const char* screen, Scope scope);

}  // namespace courtmere::app
