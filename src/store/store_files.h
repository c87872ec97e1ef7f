// Opening, closing, compacting and recovering the working store file.
#pragma once

#include <chrono>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace courtmere {

struct Session;

// The passphrase of the save-file cipher.
inline constexpr std::string_view kSavePassphrase = "tidex47k29m3Q";

// Told when the working store was damaged: the store's path, then the name
// the damaged file is kept under.
inline constexpr const char* kDamagedStoreKept =
    "The store {} could not be read. The damaged file is kept as {}, and a blank store has taken "
    "its place.";

// The program's start-up: takes the program folder's lock (FolderBusy when
// another Courtmere holds it), makes the blank store and its backup when
// missing, then OpenStore(0).
void StartUp(Session& session);

// Opens the working store; with decipher = 1 the file is deciphered in place
// first. A missing file is replaced by the blank backup. A file that can't be
// deciphered, or opens as no store with a Config row, is damaged: it is kept
// beside the store under a dated name (ReplaceDamagedStore). A store that is
// busy (FolderBusy), in a folder that can't be written, on a full disk or
// behind an I/O error is not damaged: it is left as it is and the error
// (StoreError) goes to the caller. A leftover rollback journal is SQLite's to
// play back when the store opens.
void OpenStore(Session& session, int decipher);

// "mereball-damaged-<date>-<time>.dat" beside the store, with a number added
// when that name is taken.
std::filesystem::path DamagedStoreName(
    const std::filesystem::path& store,
    std::chrono::system_clock::time_point when = std::chrono::system_clock::now());

// Keeps the damaged working file (and its journal) under a dated name, puts
// the blank backup in its place and tells the user where the file is kept.
void ReplaceDamagedStore(Session& session);

// Closes the working store; with encipher = 1 the file is enciphered in place
// afterwards ("Error in the encryption" when that fails).
void CloseStore(Session& session, int encipher);

// Compacts the working store in place; the store must be closed. A
// compaction that fails (a full disk) leaves the store as it was and says so.
void CompactStore(Session& session);

inline constexpr const char* kCompactionFailed =
    "The store could not be compacted: {} It is whole and stays as it was.";
inline constexpr const char* kDiskFull =
    "The disk that holds {} is full. Free some space and try again.";
inline constexpr const char* kFolderNotWritable =
    "The folder {} can't be written (it is read-only or not yours).";

// The program's words for a write into `folder` that failed with the errno
// `error`: a full disk and a folder that can't be written get their messages.
std::string DescribeWriteFailure(const std::filesystem::path& folder, int error);

// The program's own words for a failure of the store or of a file of the
// program folder: a full disk and a folder that can't be written get their
// messages, anything else its own text.
std::string DescribeStoreFailure(const Session& session, const std::exception& error);

}  // namespace courtmere
