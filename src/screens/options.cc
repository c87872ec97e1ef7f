#include "screens/options.h"

#include <algorithm>

#include "store/session.h"

namespace courtmere {

Options CurrentOptions(const Session& session) {
  const Config& c = session.config;
  return {c.PlayByPlay, c.Autosave, c.NumPlayers, c.SimSpeed};
}

void SubmitOptions(Session& session, const Options& options) {
  Config& c = session.config;
  c.PlayByPlay = options.PlayByPlay != 0 ? 1 : 0;
  c.Autosave = options.Autosave != 0 ? 1 : 0;
  c.NumPlayers = options.NumPlayers != 0 ? 1 : 0;
  c.SimSpeed = std::clamp(options.SimSpeed, kNoTickerPause, kLongestTickerPause);
  session.Db().Exec(
      "UPDATE Config SET PlayByPlay = ?, Autosave = ?, NumPlayers = ?, SimSpeed = ? "
      "WHERE IdConfig = 0",
      c.PlayByPlay, c.Autosave, c.NumPlayers, c.SimSpeed);
  session.ui.Message("Your Settings have been updated!");
}

}  // namespace courtmere
