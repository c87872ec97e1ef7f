// Saved games: File > Save, File > Load, the test that a file is a save, and
// the autosave at the end of a season.
//
// A save is the working store enciphered (platform/file_cipher.h) under a
// name of the user's, ending ".CMR", by default in "\SaveGame\". Every step
// here leaves what the user had whole when it fails:
//  - a candidate is deciphered to a temporary file, never changed in place,
//    and the open dynasty is untouched until the candidate has proved to be a
//    save;
//  - a save is written to a temporary file beside its name and renamed over
//    it, so a full disk or a kill leaves the previous save of that name;
//  - the working file itself is never enciphered in place.
//
// The flows ask and tell through the session's Ui and never touch a window.
// The caller closes the open screens between choosing a file and running the
// flow, and runs MenuGate after a load.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "store/upgrade_store.h"

namespace courtmere {

struct Session;

inline constexpr std::string_view kNotASaveGame = "This is not a valid SaveGame File";
inline constexpr std::string_view kCannotReadSave =
    "Cannot Read the Save Game File. Please try another one or start a New Game.";
inline constexpr std::string_view kLoadFilter = "CMR Files (*.CMR)|*.CMR";
inline constexpr std::string_view kSaveFilter = "All Files (*.CMR)|*.CMR";

// Whether the name ends in ".CMR", in any case.
bool HasSaveEnding(const std::filesystem::path& path);

// The name with ".CMR" added unless it ends so already.
std::filesystem::path WithSaveEnding(std::filesystem::path path);

// File > Load's dialog, titled "Open", in "\SaveGame\". Nothing when the user
// cancels or picks a name without the ".CMR" ending (which ends the flow
// without a word).
std::optional<std::filesystem::path> ChooseGameToLoad(Session& session);

// File > Save's dialog, titled "Save", in "\SaveGame\" (made when missing).
// Nothing when the user cancels. Design decision: a name without the ".CMR"
// ending gets it, so that every save can be loaded again.
std::optional<std::filesystem::path> ChooseSaveName(Session& session);

// 1 when the file deciphers with the save passphrase and opens as a store
// with a Config row; otherwise "This is not a valid SaveGame File" and 0.
// Neither the file nor the open store changes.
int CheckSaveFile(Session& session, const std::filesystem::path& path);

// Puts the save in the working store's place and opens it. A save that can't
// be read gives "Cannot Read the Save Game File. ..." and false, with the
// open dynasty as it was.
bool LoadSave(Session& session, const std::filesystem::path& path);

enum class LoadOutcome { kLoaded, kIgnored, kRefused };

// File > Load after the dialog: ignores a name without the ".CMR" ending,
// checks the file, loads it under "Loading Game", brings the store up to
// date (UpgradeStore) and reads the season's statistics.
LoadOutcome LoadGameFile(Session& session, const std::filesystem::path& path,
                         const PlayerGrader& gradeAllPlayers);

// File > Save after the dialog, under "Saving Game": during "Season" and
// "Season Over" the season's statistics are written first; ends with "Your
// game has been saved to <path>". On a failed write, "Error in the
// encryption", false, and any earlier save of that name left as it was.
bool SaveGameFile(Session& session, const std::filesystem::path& path);

// The autosave at the end of the season flow: with the Autosave option set,
// the dynasty is written to "\SaveGame\AutoSave.CMR" over the last one.
// Returns whether a save was written.
bool Autosave(Session& session);

// Whether the dynasty in the store changed since it was last loaded or saved
// (a dynasty never saved counts as changed). False when there is none.
bool UnsavedChanges(Session& session);
// Takes the store as it stands as saved.
void MarkSaved(Session& session);

}  // namespace courtmere
