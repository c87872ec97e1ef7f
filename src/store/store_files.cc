#include "store/store_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "platform/file_cipher.h"
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

void OpenWorkingStore(Session& session) {
  session.store = std::make_unique<Store>(session.folder.Store());
  session.config = LoadConfig(*session.store);
}

}  // namespace

void StartUp(Session& session) {
  const ProgramFolder& folder = session.folder;
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
  if (decipher == 1 && !CipherFile(folder.Store(), folder.Store(), kSavePassphrase)) {
    RestoreFromBackup(folder);
  }
  try {
    OpenWorkingStore(session);
  } catch (const std::exception&) {
    // Design decision: a working file that fails to open is replaced by the
    // blank backup whatever the cipher answered, so the program always goes
    // on with a usable store.
    session.store.reset();
    RestoreFromBackup(folder);
    OpenWorkingStore(session);
  }
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
  std::filesystem::remove(temp);
  {
    ConfigureSqliteOnce();
    SQLite::Database db(session.folder.Store().string(), SQLite::OPEN_READWRITE);
    SQLite::Statement vacuum(db, "VACUUM INTO ?");
    vacuum.bind(1, temp.string());
    vacuum.exec();
  }
  std::filesystem::rename(temp, session.folder.Store());
}

}  // namespace courtmere
