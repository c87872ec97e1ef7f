#include "store/store_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <fmt/format.h>
#include <sqlite3.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <system_error>

#include "platform/file_cipher.h"
#include "platform/folder_lock.h"
#include "store/blank_store.h"
#include "store/session.h"
#include "store/store.h"
#include "store/store_error.h"

namespace courtmere {
namespace {

// Copies through a temporary file and a rename, so the target is always
// either the old file or the whole new one.
void CopyAtomically(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::filesystem::path temp = to;
  temp += ".copy-tmp";
  std::filesystem::copy_file(from, temp, std::filesystem::copy_options::overwrite_existing);
  std::filesystem::rename(temp, to);
}

// A store that opens and has its Config row.
bool IsUsableStore(const std::filesystem::path& file) {
  try {
    Store store(file);
    LoadConfig(store);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

// Puts the blank backup in the working file's place. A backup that is itself
// damaged is built anew from the blank store compiled into the program.
void RestoreFromBackup(const ProgramFolder& folder) {
  if (!IsUsableStore(folder.Backup())) BuildBlankStore(folder.Backup());
  CopyAtomically(folder.Backup(), folder.Store());
}

// Whether a failure to open the working store says that the file itself is
// damaged. A busy file, a folder that can't be written, a full disk or an
// I/O error say nothing of the file's contents: the file is left alone and
// the failure goes to the caller.
bool FailureMeansDamage(const StoreError& error) {
  switch (error.Code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_IOERR:
    case SQLITE_FULL:
    case SQLITE_NOMEM:
    case SQLITE_AUTH:
    case SQLITE_INTERRUPT:
      return false;
    default:
      return true;
  }
}

// A file cut short (shorter than its own header says it is) or whose pages
// don't hang together. Asked after the store has opened, when SQLite has
// played back any journal left behind. Design decision: the quick check reads
// every page once (some milliseconds for a dynasty's store) so that a damaged
// store is found at start-up, kept and replaced, rather than failing every
// flow that reaches its broken page.
bool IsDamaged(Store& store) {
  const int64_t pages = store.ScalarInt("PRAGMA page_count").value_or(0);
  const int64_t pageSize = store.ScalarInt("PRAGMA page_size").value_or(0);
  if (static_cast<uintmax_t>(pages * pageSize) > std::filesystem::file_size(store.File())) {
    return true;
  }
  return store.ScalarText("PRAGMA quick_check(1)").value_or("") != "ok";
}

void OpenWorkingStore(Session& session) {
  try {
    session.store = std::make_unique<Store>(session.folder.Store());
    session.config = LoadConfig(*session.store);
    if (IsDamaged(*session.store)) throw StoreError("The store is damaged", SQLITE_CORRUPT);
  } catch (const SQLite::Exception& e) {
    session.store.reset();
    throw StoreError(std::string("The store can't be read: ") + e.what(), e.getErrorCode() & 0xff);
  } catch (...) {
    session.store.reset();
    throw;
  }
}

// Opens the working store; a file that proves damaged is kept under a dated
// name and the blank store takes its place.
void OpenOrReplaceWorkingStore(Session& session) {
  try {
    OpenWorkingStore(session);
    return;
  } catch (const StoreError& error) {
    if (error.Code() == SQLITE_BUSY || error.Code() == SQLITE_LOCKED) {
      throw FolderBusy(session.folder.Root());
    }
    if (!FailureMeansDamage(error)) throw;
  }
  ReplaceDamagedStore(session);
  OpenWorkingStore(session);
}

}  // namespace

std::filesystem::path DamagedStoreName(const std::filesystem::path& store,
                                       std::chrono::system_clock::time_point when) {
  const std::time_t t = std::chrono::system_clock::to_time_t(when);
  std::tm local{};
  localtime_r(&t, &local);
  char stamp[32];
  std::strftime(stamp, sizeof stamp, "%Y-%m-%d-%H%M%S", &local);
  const std::string base = store.stem().string() + "-damaged-" + stamp;
  std::filesystem::path name = store.parent_path() / (base + store.extension().string());
  for (int n = 2; std::filesystem::exists(name); ++n) {
    name = store.parent_path() / (base + "-" + std::to_string(n) + store.extension().string());
  }
  return name;
}

void ReplaceDamagedStore(Session& session) {
  const ProgramFolder& folder = session.folder;
  const std::filesystem::path kept = DamagedStoreName(folder.Store());
  std::filesystem::rename(folder.Store(), kept);
  // A rollback journal belongs to its database: left behind, SQLite would
  // play it into the blank store that takes the damaged one's place.
  std::filesystem::path journal = folder.Store();
  journal += "-journal";
  if (std::filesystem::exists(journal)) {
    std::filesystem::path keptJournal = kept;
    keptJournal += "-journal";
    std::filesystem::rename(journal, keptJournal);
  }
  RestoreFromBackup(folder);
  session.ui.Message(fmt::format(kDamagedStoreKept, folder.Store().string(), kept.string()));
}

void StartUp(Session& session) {
  const ProgramFolder& folder = session.folder;
  // Nothing of the folder is touched before its lock is held.
  if (!session.folderLock) session.folderLock = std::make_unique<FolderLock>(folder.Root());
  // The backup is the blank store, made once. It is built from the compiled-in
  // blank store rather than copied from the working file, which may still hold
  // the dynasty of a run that was killed.
  if (!std::filesystem::exists(folder.Backup())) BuildBlankStore(folder.Backup());
  if (!std::filesystem::exists(folder.Store())) CopyAtomically(folder.Backup(), folder.Store());
  OpenStore(session, 0);
}

void OpenStore(Session& session, int decipher) {
  const ProgramFolder& folder = session.folder;
  session.store.reset();
  // A store opened anew counts its changes from nothing: until a save or a
  // load marks it, its dynasty counts as changed since the last save.
  session.changesAtSave = -1;
  if (!std::filesystem::exists(folder.Store())) {
    // Nothing to keep: the blank store simply takes the empty place.
    RestoreFromBackup(folder);
  } else if (decipher == 1 && !CipherFile(folder.Store(), folder.Store(), kSavePassphrase)) {
    ReplaceDamagedStore(session);
  }
  OpenOrReplaceWorkingStore(session);
}

void CloseStore(Session& session, int encipher) {
  session.store.reset();
  if (encipher == 1 &&
      !CipherFile(session.folder.Store(), session.folder.Store(), kSavePassphrase)) {
    session.ui.Message("Error in the encryption");
  }
}

void CompactStore(Session& session) {
  if (session.StoreOpen()) throw StoreError("The store must be closed to be compacted");
  const std::filesystem::path temp = session.folder.CompactTemp();
  std::error_code ignored;
  std::filesystem::remove(temp, ignored);
  try {
    {
      ConfigureSqliteOnce();
      SQLite::Database db(session.folder.Store().string(), SQLite::OPEN_READWRITE);
      SQLite::Statement vacuum(db, "VACUUM INTO ?");
      vacuum.bind(1, temp.string());
      vacuum.exec();
    }
    std::filesystem::rename(temp, session.folder.Store());
  } catch (const std::exception& error) {
    // Compaction only makes the file smaller: the store it started from is
    // whole, so a failure (a full disk) costs nothing but the space.
    std::filesystem::remove(temp, ignored);
    session.ui.Message(fmt::format(kCompactionFailed, DescribeStoreFailure(session, error)));
  }
}

std::string DescribeStoreFailure(const Session& session, const std::exception& error) {
  int code = 0;
  if (const auto* e = dynamic_cast<const SQLite::Exception*>(&error))
    code = e->getErrorCode() & 0xff;
  if (const auto* e = dynamic_cast<const StoreError*>(&error)) code = e->Code();
  const std::string folder = session.folder.Root().string();
  if (code == SQLITE_FULL) return fmt::format(kDiskFull, folder);
  if (code == SQLITE_READONLY || code == SQLITE_PERM || code == SQLITE_CANTOPEN) {
    return fmt::format(kFolderNotWritable, folder);
  }
  if (const auto* e = dynamic_cast<const std::system_error*>(&error)) {
    const int value = e->code().value();
    if (value == ENOSPC || value == EDQUOT || value == EACCES || value == EPERM || value == EROFS) {
      return DescribeWriteFailure(session.folder.Root(), value);
    }
  }
  return error.what();
}

std::string DescribeWriteFailure(const std::filesystem::path& folder, int error) {
  if (error == ENOSPC || error == EDQUOT) return fmt::format(kDiskFull, folder.string());
  if (error == EACCES || error == EPERM || error == EROFS) {
    return fmt::format(kFolderNotWritable, folder.string());
  }
  return fmt::format("A file in {} could not be written: {}.", folder.string(),
                     std::strerror(error));
}

}  // namespace courtmere
