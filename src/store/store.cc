#include "store/store.h"

#include <sqlite3.h>

#include "store/store_error.h"

namespace courtmere {

void BindValue(Statement& stmt, int index, std::nullptr_t) {
  stmt.BindNull(index);
}
void BindValue(Statement& stmt, int index, int value) {
  stmt.Bind(index, static_cast<int64_t>(value));
}
void BindValue(Statement& stmt, int index, int64_t value) {
  stmt.Bind(index, value);
}
void BindValue(Statement& stmt, int index, double value) {
  stmt.Bind(index, value);
}
void BindValue(Statement& stmt, int index, std::string_view value) {
  stmt.Bind(index, value);
}
void BindValue(Statement& stmt, int index, const std::string& value) {
  stmt.Bind(index, std::string_view(value));
}
void BindValue(Statement& stmt, int index, const char* value) {
  stmt.Bind(index, std::string_view(value));
}
void BindValue(Statement& stmt, int index, const Value& value) {
  std::visit([&](const auto& v) { BindValue(stmt, index, v); }, value);
}

void ConfigureSqliteOnce() {
  static const bool configured = [] {
    // SQLite keeps memory statistics behind a global mutex taken on every
    // allocation; the program never reads them. Refused (and harmless) when
    // SQLite was already started.
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    // One thread uses a connection at a time, so the per-connection mutex
    // that every call would take and release buys nothing.
    sqlite3_config(SQLITE_CONFIG_MULTITHREAD);
    return true;
  }();
  (void)configured;
}

// ---------------------------------------------------------------------------
// Rows

Rows::Rows(Statement* stmt, std::unique_ptr<Statement> owned, bool* inUse)
    : stmt_(stmt), owned_(std::move(owned)), inUse_(inUse) {}

Rows::Rows(Rows&& other) noexcept
    : stmt_(other.stmt_), owned_(std::move(other.owned_)), inUse_(other.inUse_) {
  other.stmt_ = nullptr;
  other.inUse_ = nullptr;
}

Rows::~Rows() {
  if (stmt_ == nullptr) return;
  stmt_->Reset();
  if (inUse_ != nullptr) *inUse_ = false;
}

bool Rows::Next() {
  return stmt_->Step();
}

int Rows::Int(int col) const {
  return stmt_->Int(col);
}
int64_t Rows::Int64(int col) const {
  return stmt_->Int64(col);
}
double Rows::Double(int col) const {
  return stmt_->Double(col);
}
std::string Rows::Text(int col) const {
  return std::string(stmt_->Text(col));
}
std::string_view Rows::TextView(int col) const {
  return stmt_->Text(col);
}
void Rows::TextInto(int col, std::string& out) const {
  out.assign(stmt_->Text(col));
}
bool Rows::IsNull(int col) const {
  return stmt_->IsNull(col);
}

Value Rows::Get(int col) const {
  switch (stmt_->Type(col)) {
    case SQLITE_INTEGER:
      return stmt_->Int64(col);
    case SQLITE_FLOAT:
      return stmt_->Double(col);
    case SQLITE_NULL:
      return nullptr;
    default:
      return Text(col);
  }
}

int Rows::Int(const char* name) const {
  return Int(stmt_->ColumnIndex(name));
}
int64_t Rows::Int64(const char* name) const {
  return Int64(stmt_->ColumnIndex(name));
}
double Rows::Double(const char* name) const {
  return Double(stmt_->ColumnIndex(name));
}
std::string Rows::Text(const char* name) const {
  return Text(stmt_->ColumnIndex(name));
}
bool Rows::IsNull(const char* name) const {
  return IsNull(stmt_->ColumnIndex(name));
}
Value Rows::Get(const char* name) const {
  return Get(stmt_->ColumnIndex(name));
}

int Rows::ColumnCount() const {
  return stmt_->ColumnCount();
}
std::string Rows::ColumnName(int col) const {
  return stmt_->ColumnName(col);
}

// ---------------------------------------------------------------------------
// Store

namespace {

constexpr int kBusyWaitMs = 1000;

SQLite::Database OpenDatabase(const std::filesystem::path& file) {
  ConfigureSqliteOnce();
  if (!std::filesystem::exists(file)) {
    throw StoreError("The store " + file.string() + " does not exist");
  }
  try {
    // One connection serves one thread: SQLite's own locking of every call
    // would guard nothing.
    SQLite::Database db(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    // The folder lock keeps other Courtmeres away; another program holding
    // the file (a database browser) is waited for a moment, and then the
    // store is reported busy, never damaged.
    db.setBusyTimeout(kBusyWaitMs);
    // A file that isn't a database opens without complaint; reading its
    // schema is what finds it out.
    db.exec("SELECT count(*) FROM sqlite_master");
    return db;
  } catch (const SQLite::Exception& e) {
    throw StoreError("The store " + file.string() + " can't be opened: " + e.what(),
                     e.getErrorCode() & 0xff);
  }
}

}  // namespace

Store::Store(const std::filesystem::path& file) : file_(file), db_(OpenDatabase(file)) {
  try {
    SetSessionPragmas();
  } catch (const SQLite::Exception& e) {
    throw StoreError("The store " + file.string() + " can't be opened: " + e.what(),
                     e.getErrorCode() & 0xff);
  }
}

void Store::SetSessionPragmas() {
  // Rollback journal with full syncs at commit: the file is whole after every
  // committed step, and closing leaves nothing beside it to copy or cipher.
  db_.exec("PRAGMA journal_mode = DELETE");
  // One program, one connection: holding the file lock for the whole session
  // spares every read its lock and cache-validation system calls.
  db_.exec("PRAGMA locking_mode = EXCLUSIVE");
  db_.exec("PRAGMA synchronous = FULL");
  db_.exec("PRAGMA foreign_keys = OFF");
}

Store::~Store() {
  // Statements must be finalized before the connection closes.
  cache_.clear();
}

Store::Cached Store::Acquire(std::string_view sql) {
  auto it = cache_.find(sql);
  if (it == cache_.end()) {
    Entry entry;
    entry.stmt = std::make_unique<Statement>(db_.getHandle(), sql);
    it = cache_.emplace(std::string(sql), std::move(entry)).first;
  }
  Entry& entry = it->second;
  if (entry.inUse) {
    // The cached statement is still being read by an outer reader.
    auto owned = std::make_unique<Statement>(db_.getHandle(), sql);
    Statement* raw = owned.get();
    return {raw, std::move(owned), nullptr};
  }
  entry.inUse = true;
  return {entry.stmt.get(), nullptr, &entry.inUse};
}

int Store::Run(Cached& c) {
  Rows guard(c.stmt, std::move(c.owned), c.inUse);  // resets and releases on exit
  c.stmt->Run();
  return db_.getChanges();
}

int Store::ExecValues(std::string_view sql, const std::vector<Value>& values) {
  Cached c = Acquire(sql);
  for (size_t i = 0; i < values.size(); ++i) BindValue(*c.stmt, static_cast<int>(i + 1), values[i]);
  return Run(c);
}

int64_t Store::Append(std::string_view table, const Column* columns, size_t count) {
  std::string sql = "INSERT INTO ";
  sql += table;
  sql += " (";
  std::string marks;
  for (size_t i = 0; i < count; ++i) {
    const std::string_view name = columns[i].first;
    if (!marks.empty()) {
      sql += ", ";
      marks += ", ";
    }
    sql += name;
    marks += '?';
  }
  sql += ") VALUES (" + marks + ")";
  Cached c = Acquire(sql);
  for (size_t i = 0; i < count; ++i) BindValue(*c.stmt, static_cast<int>(i + 1), columns[i].second);
  Run(c);
  return db_.getLastInsertRowid();
}

std::string Store::FirstName(int id) {
  return ScalarText("SELECT FirstName FROM FName WHERE Id = ?", id).value_or("");
}

std::string Store::LastName(int id) {
  return ScalarText("SELECT LastName FROM LName WHERE Id = ?", id).value_or("");
}

void Store::ExecScript(const std::string& sql) {
  db_.exec(sql);
}

bool Store::TableExists(std::string_view table) {
  return ScalarInt("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = ?", table)
             .value_or(0) > 0;
}

bool Store::ColumnExists(std::string_view table, std::string_view column) {
  return ScalarInt("SELECT count(*) FROM pragma_table_info(?) WHERE name = ?", table, column)
             .value_or(0) > 0;
}

int64_t Store::RowCount(std::string_view table) {
  // Table names can't be bound; they come from the program, never from input.
  return ScalarInt("SELECT count(*) FROM " + std::string(table)).value_or(0);
}

// ---------------------------------------------------------------------------
// Transaction

Store::Transaction::Transaction(Store& store) : store_(store), depth_(store.txDepth_) {
  if (depth_ == 0) {
    store_.db_.exec("BEGIN IMMEDIATE");
  } else {
    store_.db_.exec("SAVEPOINT sp" + std::to_string(depth_));
  }
  ++store_.txDepth_;
}

Store::Transaction::~Transaction() {
  if (done_) return;
  try {
    if (depth_ == 0) {
      store_.db_.exec("ROLLBACK");
    } else {
      const std::string name = "sp" + std::to_string(depth_);
      store_.db_.exec("ROLLBACK TO " + name);
      store_.db_.exec("RELEASE " + name);
    }
  } catch (...) {
    // Nothing more can be done in a destructor; the connection stays usable.
  }
  --store_.txDepth_;
}

void Store::Transaction::Commit() {
  // SQLite ends a transaction of its own accord on some failures (a full
  // disk, an I/O error). Committing then would store the rest of the step
  // alone, outside any transaction; it fails instead, as the step did.
  if (sqlite3_get_autocommit(store_.db_.getHandle()) != 0) {
    throw StoreError("The step was rolled back after a failure of the store", SQLITE_ABORT);
  }
  if (depth_ == 0) {
    store_.db_.exec("COMMIT");
  } else {
    store_.db_.exec("RELEASE sp" + std::to_string(depth_));
  }
  done_ = true;
  --store_.txDepth_;
}

}  // namespace courtmere
