// What a program that opens a dynasty in mid-season reads back into memory
// before it plays: the calendar and options, the season's individual
// figures, and the inbox's list of the last week played. The desktop
// program does this after a load; the command-line tool, one process per
// command, at the start of every command that plays or reads the season.
#pragma once

namespace courtmere {

struct Session;

void ResumeSeason(Session& session);

}  // namespace courtmere
