// The user's four options (frmOptions): play-by-play, the autosave at the
// season's end, box scores saved to disk, and the score ticker's speed.
#pragma once

namespace courtmere {

struct Session;

// The ticker's option is the pause after each game of a batch, in tenths of
// a second: 0 does not wait at all, 10 waits a whole second, 5 is normal.
inline constexpr int kNoTickerPause = 0;
inline constexpr int kNormalTickerPause = 5;
inline constexpr int kLongestTickerPause = 10;

struct Options {
  int PlayByPlay = 0;
  int Autosave = 0;
  int NumPlayers = 0;  // "Save Box Scores to Disk:"
  int SimSpeed = kNormalTickerPause;
};

// The session's values, as the screen shows them when it opens.
Options CurrentOptions(const Session& session);

// Copies the options to the session, writes them to Config and says "Your
// Settings have been updated!". A pause outside 0 to 10 is brought inside.
void SubmitOptions(Session& session, const Options& options);

}  // namespace courtmere
