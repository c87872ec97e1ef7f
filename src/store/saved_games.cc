#include "store/saved_games.h"

#include <fmt/format.h>
#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>
#include <vector>

#include "platform/file_cipher.h"
#include "store/season_stats.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere {
namespace {

constexpr std::string_view kSaveFolder = "\\SaveGame\\";

void RemoveQuietly(const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
}

// A query on a store that is only bytes in memory.
class MemoryStore {
 public:
  explicit MemoryStore(const std::vector<unsigned char>& bytes) {
    ConfigureSqliteOnce();
    if (sqlite3_open(":memory:", &db_) != SQLITE_OK) return;
    auto* copy = static_cast<unsigned char*>(sqlite3_malloc64(bytes.size()));
    if (copy == nullptr) return;
    std::memcpy(copy, bytes.data(), bytes.size());
    ok_ = sqlite3_deserialize(db_, "main", copy, static_cast<sqlite3_int64>(bytes.size()),
                              static_cast<sqlite3_int64>(bytes.size()),
                              SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_READONLY) ==
          SQLITE_OK;
  }
  ~MemoryStore() { sqlite3_close(db_); }
  MemoryStore(const MemoryStore&) = delete;
  MemoryStore& operator=(const MemoryStore&) = delete;

  // Whether the query gives a row.
  bool HasRow(const char* sql) {
    sqlite3_stmt* stmt = nullptr;
    if (!ok_ || sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr) != SQLITE_OK) {
      sqlite3_finalize(stmt);
      return false;
    }
    const bool row = sqlite3_step(stmt) == SQLITE_ROW;
    sqlite3_finalize(stmt);
    return row;
  }

 private:
  sqlite3* db_ = nullptr;
  bool ok_ = false;
};

// SimSpeed is the column a save must answer for.
constexpr const char* kConfigRowQuery = "SELECT SimSpeed FROM Config WHERE IdConfig = 0";

// Whether the file is a store with its Config row.
bool HasConfigRow(const std::filesystem::path& file) {
  try {
    Store store(file);
    Rows rows = store.Query(kConfigRowQuery);
    return rows.Next();
  } catch (const std::exception&) {
    return false;
  }
}

std::string CannotRead(const std::filesystem::path& file, int error) {
  return fmt::format(kCannotReadFile, file.string(), std::strerror(error));
}

// Writes the working store, enciphered, to `target`. The store is closed for
// the copy, so everything committed is in the one file, and opened again
// whatever happens. The cipher writes a temporary file and renames it, so a
// failure leaves `target` as it was.
bool WriteSave(Session& session, const std::filesystem::path& target) {
  CloseStore(session, 0);
  const CipherResult written = TransformFile(session.folder.Store(), target, kSavePassphrase);
  OpenStore(session, 0);
  if (written.outcome == CipherOutcome::kCannotWrite) {
    session.ui.Message(
        fmt::format(kSaveNotWritten, DescribeWriteFailure(target.parent_path(), written.error)));
    return false;
  }
  if (!written.Done()) {
    session.ui.Message("Error in the encryption");
    return false;
  }
  MarkSaved(session);
  return true;
}

int64_t ChangeCount(Session& session) {
  return session.Db().Db().getTotalChanges();
}

}  // namespace

bool HasSaveEnding(const std::filesystem::path& path) {
  std::string name = path.filename().string();
  if (name.size() < 4) return false;
  std::string ending = name.substr(name.size() - 4);
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return ending == ".CMR";
}

std::filesystem::path WithSaveEnding(std::filesystem::path path) {
  if (!HasSaveEnding(path)) path += ".CMR";
  return path;
}

std::optional<std::filesystem::path> ChooseGameToLoad(Session& session) {
  std::optional<std::filesystem::path> path =
      session.ui.OpenFile("Open", session.folder.Path(kSaveFolder), kLoadFilter);
  if (!path || !HasSaveEnding(*path)) return std::nullopt;
  return path;
}

std::optional<std::filesystem::path> ChooseSaveName(Session& session) {
  const std::filesystem::path folder = session.folder.EnsureFolder(kSaveFolder);
  std::optional<std::filesystem::path> path = session.ui.SaveFile("Save", folder, kSaveFilter);
  if (!path) return std::nullopt;
  return WithSaveEnding(std::move(*path));
}

int CheckSaveFile(Session& session, const std::filesystem::path& path) {
  std::vector<unsigned char> plain;
  const CipherResult deciphered = DecipherFile(path, kSavePassphrase, plain);
  if (deciphered.outcome == CipherOutcome::kCannotRead) {
    session.ui.Message(CannotRead(path, deciphered.error));
    return 0;
  }
  if (!deciphered.Done() || !MemoryStore(plain).HasRow(kConfigRowQuery)) {
    session.ui.Message(kNotASaveGame);
    return 0;
  }
  return 1;
}

bool LoadSave(Session& session, const std::filesystem::path& path) {
  const std::filesystem::path plain = session.folder.Path("\\mereballLoad.dat");
  RemoveQuietly(plain);
  const CipherResult deciphered = TransformFile(path, plain, kSavePassphrase);
  if (deciphered.outcome == CipherOutcome::kCannotWrite) {
    session.ui.Message(fmt::format(kLoadNotWritten,
                                   DescribeWriteFailure(session.folder.Root(), deciphered.error)));
    return false;
  }
  if (deciphered.outcome == CipherOutcome::kCannotRead) {
    session.ui.Message(CannotRead(path, deciphered.error));
    return false;
  }
  if (!deciphered.Done() || !HasConfigRow(plain)) {
    RemoveQuietly(plain);
    session.ui.Message(kCannotReadSave);
    return false;
  }
  if (session.StoreOpen()) CloseStore(session, 0);
  std::filesystem::rename(plain, session.folder.Store());
  OpenStore(session, 0);
  return true;
}

LoadOutcome LoadGameFile(Session& session, const std::filesystem::path& path,
                         const PlayerGrader& gradeAllPlayers) {
  if (!HasSaveEnding(path)) return LoadOutcome::kIgnored;
  session.ui.ShowProgress("Loading Game");
  const bool loaded = CheckSaveFile(session, path) == 1 && LoadSave(session, path);
  session.ui.HideProgress();
  if (!loaded) return LoadOutcome::kRefused;
  UpgradeStore(session, gradeAllPlayers);
  LoadSeasonStats(session);
  MarkSaved(session);
  return LoadOutcome::kLoaded;
}

bool SaveGameFile(Session& session, const std::filesystem::path& path) {
  session.ui.ShowProgress("Saving Game");
  const std::string& stage = session.config.Stage;
  if (stage == kStageSeason || stage == kStageSeasonOver) SaveSeasonStats(session);
  const bool saved = WriteSave(session, path);
  session.ui.HideProgress();
  if (saved) session.ui.Message("Your game has been saved to " + path.string());
  return saved;
}

bool Autosave(Session& session) {
  if (session.config.Autosave != 1) return false;
  session.folder.EnsureFolder(kSaveFolder);
  return WriteSave(session, session.folder.Path("\\SaveGame\\AutoSave.CMR"));
}

bool UnsavedChanges(Session& session) {
  if (!session.StoreOpen() || session.humanSchool.empty()) return false;
  return session.changesAtSave < 0 || ChangeCount(session) != session.changesAtSave;
}

void MarkSaved(Session& session) {
  session.changesAtSave = ChangeCount(session);
}

}  // namespace courtmere
