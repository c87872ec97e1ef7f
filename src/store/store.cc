#include "store/store.h"

#include <sqlite3.h>

#include <cctype>

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

int64_t Store::DataVersion() const {
  return sqlite3_total_changes64(const_cast<SQLite::Database&>(db_).getHandle()) + otherChanges_;
}

void Store::NoteStatement(std::string_view sql) {
  const size_t start = sql.find_first_not_of(" \t\r\n(");
  if (start == std::string_view::npos) return;
  const std::string_view rest = sql.substr(start);
  auto startsWith = [&](std::string_view word) {
    if (rest.size() < word.size()) return false;
    for (size_t i = 0; i < word.size(); ++i) {
      if (std::toupper(static_cast<unsigned char>(rest[i])) != word[i]) return false;
    }
    // The keyword must end there: "UPDATEX" is not an update.
    return rest.size() == word.size() ||
           !std::isalnum(static_cast<unsigned char>(rest[word.size()]));
  };
  // Row changes are counted by SQLite itself; queries change nothing.
  if (startsWith("SELECT") || startsWith("INSERT") || startsWith("UPDATE") ||
      startsWith("DELETE")) {
    return;
  }
  DataMayChange();
}

const CachedRows& Store::QueryCached(std::string_view sql, const std::string& param) {
  const int64_t version = DataVersion();
  if (version != rowsVersion_) {
    rowCache_.clear();
    rowsVersion_ = version;
  }
  std::string key(sql);
  key += '\0';
  key += param;
  auto it = rowCache_.find(key);
  if (it != rowCache_.end()) return it->second;

  CachedRows kept;
  Rows rows = Query(sql, param);
  while (rows.Next()) {
    const int columns = rows.ColumnCount();
    std::vector<CachedRows::Cell> row(static_cast<size_t>(columns));
    for (int c = 0; c < columns; ++c) {
      CachedRows::Cell& cell = row[static_cast<size_t>(c)];
      // Read as the Rows readers do, the numbers before the text.
      cell.Null = rows.IsNull(c);
      cell.Int64 = rows.Int64(c);
      cell.Double = rows.Double(c);
      cell.Text = rows.Text(c);
    }
    kept.rows_.push_back(std::move(row));
  }
  return rowCache_.emplace(std::move(key), std::move(kept)).first->second;
}

int Store::ExecValues(std::string_view sql, const std::vector<Value>& values) {
  NoteStatement(sql);
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
  DataMayChange();
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
  store_.DataMayChange();
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
