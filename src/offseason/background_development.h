// The yearly development of a background player (a ScrubPlayer row), as the
// refresh of the background field asks for it.
#pragma once

namespace courtmere {

struct Session;

void DevelopBackgroundPlayer(Session& session, int id);

}  // namespace courtmere
