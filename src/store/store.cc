#include "store/store.h"

#include <sqlite3.h>

#include "store/store_error.h"

namespace courtmere {

void BindValue(SQLite::Statement& stmt, int index, std::nullptr_t) {
  stmt.bind(index);
}
void BindValue(SQLite::Statement& stmt, int index, int value) {
  stmt.bind(index, value);
}
void BindValue(SQLite::Statement& stmt, int index, int64_t value) {
  stmt.bind(index, value);
}
void BindValue(SQLite::Statement& stmt, int index, double value) {
  stmt.bind(index, value);
}
void BindValue(SQLite::Statement& stmt, int index, std::string_view value) {
  stmt.bind(index, std::string(value));
}
void BindValue(SQLite::Statement& stmt, int index, const std::string& value) {
  stmt.bind(index, value);
}
void BindValue(SQLite::Statement& stmt, int index, const char* value) {
  stmt.bind(index, value);
}
void BindValue(SQLite::Statement& stmt, int index, const Value& value) {
  std::visit([&](const auto& v) { BindValue(stmt, index, v); }, value);
}

void ConfigureSqliteOnce() {
  static const bool configured = [] {
    // SQLite keeps memory statistics behind a global mutex taken on every
    // allocation; the program never reads them. Refused (and harmless) when
    // SQLite was already started.
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    return true;
  }();
  (void)configured;
}

// ---------------------------------------------------------------------------
// Rows

Rows::Rows(SQLite::Statement* stmt, std::unique_ptr<SQLite::Statement> owned, bool* inUse)
    : stmt_(stmt), owned_(std::move(owned)), inUse_(inUse) {}

Rows::Rows(Rows&& other) noexcept
    : stmt_(other.stmt_), owned_(std::move(other.owned_)), inUse_(other.inUse_) {
  other.stmt_ = nullptr;
  other.inUse_ = nullptr;
}

Rows::~Rows() {
  if (stmt_ == nullptr) return;
  try {
    stmt_->reset();
    stmt_->clearBindings();
  } catch (...) {
    // A failed reset leaves an error code on a statement that is reset again
    // before its next use; nothing is lost.
  }
  if (inUse_ != nullptr) *inUse_ = false;
}

bool Rows::Next() {
  return stmt_->executeStep();
}

int Rows::Int(int col) const {
  return stmt_->getColumn(col).getInt();
}
int64_t Rows::Int64(int col) const {
  return stmt_->getColumn(col).getInt64();
}
double Rows::Double(int col) const {
  return stmt_->getColumn(col).getDouble();
}
std::string Rows::Text(int col) const {
  return stmt_->getColumn(col).getString();
}
std::string_view Rows::TextView(int col) const {
  const SQLite::Column column = stmt_->getColumn(col);
  // The text first, then its length: reading the text may convert the value.
  const char* text = column.getText("");
  return {text, static_cast<size_t>(column.getBytes())};
}
void Rows::TextInto(int col, std::string& out) const {
  out.assign(TextView(col));
}
bool Rows::IsNull(int col) const {
  return stmt_->isColumnNull(col);
}

Value Rows::Get(int col) const {
  SQLite::Column c = stmt_->getColumn(col);
  switch (c.getType()) {
    case SQLITE_INTEGER:
      return c.getInt64();
    case SQLITE_FLOAT:
      return c.getDouble();
    case SQLITE_NULL:
      return nullptr;
    default:
      return c.getString();
  }
}

int Rows::Int(const char* name) const {
  return stmt_->getColumn(name).getInt();
}
int64_t Rows::Int64(const char* name) const {
  return stmt_->getColumn(name).getInt64();
}
double Rows::Double(const char* name) const {
  return stmt_->getColumn(name).getDouble();
}
std::string Rows::Text(const char* name) const {
  return stmt_->getColumn(name).getString();
}
bool Rows::IsNull(const char* name) const {
  return stmt_->getColumn(name).isNull();
}
Value Rows::Get(const char* name) const {
  return Get(stmt_->getColumnIndex(name));
}

int Rows::ColumnCount() const {
  return stmt_->getColumnCount();
}
std::string Rows::ColumnName(int col) const {
  return stmt_->getColumnName(col);
}

// ---------------------------------------------------------------------------
// Store

namespace {

SQLite::Database OpenDatabase(const std::filesystem::path& file) {
  ConfigureSqliteOnce();
  if (!std::filesystem::exists(file)) {
    throw StoreError("The store " + file.string() + " does not exist");
  }
  try {
    // One connection serves one thread: SQLite's own locking of every call
    // would guard nothing.
    SQLite::Database db(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    // A file that isn't a database opens without complaint; reading its
    // schema is what finds it out.
    db.exec("SELECT count(*) FROM sqlite_master");
    return db;
  } catch (const SQLite::Exception& e) {
    throw StoreError("The store " + file.string() + " can't be opened: " + e.what());
  }
}

}  // namespace

Store::Store(const std::filesystem::path& file) : file_(file), db_(OpenDatabase(file)) {
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
    entry.stmt = std::make_unique<SQLite::Statement>(db_, std::string(sql));
    it = cache_.emplace(std::string(sql), std::move(entry)).first;
  }
  Entry& entry = it->second;
  if (entry.inUse) {
    // The cached statement is still being read by an outer reader.
    auto owned = std::make_unique<SQLite::Statement>(db_, std::string(sql));
    SQLite::Statement* raw = owned.get();
    return {raw, std::move(owned), nullptr};
  }
  entry.inUse = true;
  return {entry.stmt.get(), nullptr, &entry.inUse};
}

int Store::Run(Cached& c) {
  Rows guard(c.stmt, std::move(c.owned), c.inUse);  // resets and releases on exit
  c.stmt->exec();
  return db_.getChanges();
}

int Store::ExecValues(std::string_view sql, const std::vector<Value>& values) {
  Cached c = Acquire(sql);
  for (size_t i = 0; i < values.size(); ++i) BindValue(*c.stmt, static_cast<int>(i + 1), values[i]);
  return Run(c);
}

int64_t Store::Append(std::string_view table,
                      std::initializer_list<std::pair<std::string_view, Value>> columns) {
  std::string sql = "INSERT INTO ";
  sql += table;
  sql += " (";
  std::string marks;
  for (const auto& [name, value] : columns) {
    if (!marks.empty()) {
      sql += ", ";
      marks += ", ";
    }
    sql += name;
    marks += '?';
  }
  sql += ") VALUES (" + marks + ")";
  Cached c = Acquire(sql);
  int index = 0;
  for (const auto& [name, value] : columns) BindValue(*c.stmt, ++index, value);
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
  if (depth_ == 0) {
    store_.db_.exec("COMMIT");
  } else {
    store_.db_.exec("RELEASE sp" + std::to_string(depth_));
  }
  done_ = true;
  --store_.txDepth_;
}

}  // namespace courtmere
