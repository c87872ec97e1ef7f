// The user's four options (frmOptions): play-by-play, the autosave at the
// season's end, box scores saved to disk, and the score ticker's speed.
#pragma once

namespace courtmere {

struct Session;

inline constexpr int kSlowestTicker = 1;
inline constexpr int kFastestTicker = 10;

struct Options {
  int PlayByPlay = 0;
  int Autosave = 0;
  int NumPlayers = 0;  // "Save Box Scores to Disk:"
  int SimSpeed = 5;
};

// The session's values, as the screen shows them when it opens.
Options CurrentOptions(const Session& session);

// Copies the options to the session, writes them to Config and says "Your
// Settings have been updated!". A speed outside 1 to 10 is brought inside.
void SubmitOptions(Session& session, const Options& options);

}  // namespace courtmere
