// Saved games: File > Save, File > Load, the test that a file is a save, and
// the autosave at the end of a season.
//
// A save is the working store enciphered (platform/file_cipher.h) under a
// name of the user's, ending ".CMR", by default in "\SaveGame\". Every step
// here leaves what the user had whole when it fails:
//  - a candidate is checked in memory, never changed in place or written
//    anywhere, and the open dynasty is untouched until it has proved to be a
//    save; a file too large to be a save, or that doesn't start as one, is
//    refused before it is read;
//  - a disk that is full or can't be written is told apart from a file that
//    is no save: a good save is never called invalid;
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
// A file the user named that can't be read at all: its path and the reason.
inline constexpr const char* kCannotReadFile = "The file {} can't be read: {}.";
// A save or a load that the disk refused (full, read-only): the reason.
inline constexpr const char* kSaveNotWritten = "{} The game was not saved.";
inline constexpr const char* kLoadNotWritten =
    "{} The saved game was not loaded; the store is as it was.";
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
// with a Config row; otherwise "This is not a valid SaveGame File" (or, for a
// file that can't be read at all, the reason) and 0. The check is made in
// memory: neither the file, the disk nor the open store changes.
int CheckSaveFile(Session& session, const std::filesystem::path& path);

// Puts the save in the working store's place and opens it. A save that can't
// be read gives "Cannot Read the Save Game File. ..." and a program folder
// that can't take it (a full disk, a read-only folder) its own message; both
// give false, with the open dynasty as it was.
bool LoadSave(Session& session, const std::filesystem::path& path);

enum class LoadOutcome { kLoaded, kIgnored, kRefused };

// File > Load after the dialog: ignores a name without the ".CMR" ending,
// checks the file, loads it under "Loading Game", brings the store up to
// date (UpgradeStore) and reads the season's statistics.
LoadOutcome LoadGameFile(Session& session, const std::filesystem::path& path,
                         const PlayerGrader& gradeAllPlayers);

// File > Save after the dialog, under "Saving Game": during "Season" and
// "Season Over" the season's statistics are written first; ends with "Your
// game has been saved to <path>". A disk that refuses the write (full,
// read-only, a missing folder) is told as such; a store that won't encipher
// gives "Error in the encryption". Either way false, and any earlier save of
// that name left as it was.
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
