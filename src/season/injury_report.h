// The trainer's letter after each day step: which of the user's men were
// hurt since the last letter, and which are healthy again. Each man's
// InjuryUpdate remembers what the user has been told, so a man hurt and
// healed between two letters is told neither way.
#pragma once

namespace courtmere {

struct Session;

// Sends the "Injury Update" letter from "Trainer" when there is news, and
// keeps it in the Messages archive.
void InjuryReport(Session& session);

}  // namespace courtmere
