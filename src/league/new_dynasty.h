// File > New up to the conference choice: after the user agrees, the store
// is emptied of the old dynasty and holds the six fixed conferences and their
// schools. Until a head coach's school is set the stage gate sees no dynasty,
// so a flow cut short here leaves a store that only a new File > New or a
// load will use.
#pragma once

namespace courtmere {

struct Session;

// False when the user answers No; nothing is changed then.
bool BeginNewDynasty(Session& session);

}  // namespace courtmere
