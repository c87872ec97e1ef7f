// The offseason's commands each belong to one stage of the year. The menus
// offer a command only in its stage; a caller without the menus (the
// command-line tool, a script) hears why nothing happens.
#pragma once

namespace courtmere {

struct Session;

// True when the dynasty stands in `stage`; otherwise tells the user that
// `command` runs only there, and where the dynasty stands.
bool RequireStage(Session& session, const char* stage, const char* command);

}  // namespace courtmere
