#include "offseason/offseason_stage.h"

#include <string>

#include "store/session.h"

namespace courtmere {

bool RequireStage(Session& session, const char* stage, const char* command) {
  if (session.config.Stage == stage) return true;
  session.ui.Message(std::string(command) + " can only be run in the stage " + stage +
                     "; the dynasty stands in " + session.config.Stage + ".");
  return false;
}

}  // namespace courtmere
