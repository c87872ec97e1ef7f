#include "store/statement.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace courtmere {

Statement::Statement(sqlite3* db, std::string_view sql) : db_(db) {
  Check(sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &stmt_, nullptr));
  columns_ = sqlite3_column_count(stmt_);
}

Statement::~Statement() {
  sqlite3_finalize(stmt_);
}

void Statement::Check(int rc) const {
  if (rc != SQLITE_OK) throw SQLite::Exception(db_, rc);
}

void Statement::BindNull(int index) {
  Check(sqlite3_bind_null(stmt_, index));
}
void Statement::Bind(int index, int64_t value) {
  Check(sqlite3_bind_int64(stmt_, index, value));
}
void Statement::Bind(int index, double value) {
  Check(sqlite3_bind_double(stmt_, index, value));
}
void Statement::Bind(int index, std::string_view text) {
  // SQLite copies the text: the caller's string may be a temporary.
  Check(sqlite3_bind_text(stmt_, index, text.data(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT));
}

bool Statement::Step() {
  const int rc = sqlite3_step(stmt_);
  if (rc == SQLITE_ROW) return hasRow_ = true;
  hasRow_ = false;
  if (rc != SQLITE_DONE) throw SQLite::Exception(db_, rc);
  return false;
}

void Statement::Run() {
  while (Step()) {
  }
}

void Statement::Reset() noexcept {
  // A failed step leaves its code here as well; it is raised by the step.
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
  hasRow_ = false;
}

std::string Statement::ColumnName(int col) const {
  const char* name = sqlite3_column_name(stmt_, col);
  if (name == nullptr) throw SQLite::Exception("No column " + std::to_string(col));
  return name;
}

int Statement::ColumnIndex(std::string_view name) const {
  for (int col = 0; col < columns_; ++col) {
    if (name == sqlite3_column_name(stmt_, col)) return col;
  }
  throw SQLite::Exception("No column named " + std::string(name));
}

sqlite3_stmt* Statement::Checked(int col) const {
  if (!hasRow_) throw SQLite::Exception("No row to read column " + std::to_string(col));
  if (col < 0 || col >= columns_) {
    throw SQLite::Exception("Column " + std::to_string(col) + " is out of range");
  }
  return stmt_;
}

int Statement::Int(int col) const {
  return sqlite3_column_int(Checked(col), col);
}
int64_t Statement::Int64(int col) const {
  return sqlite3_column_int64(Checked(col), col);
}
double Statement::Double(int col) const {
  return sqlite3_column_double(Checked(col), col);
}
std::string_view Statement::Text(int col) const {
  sqlite3_stmt* stmt = Checked(col);
  // The text first, then its length: reading the text may convert the value.
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, col));
  if (text == nullptr) return {};
  return {text, static_cast<size_t>(sqlite3_column_bytes(stmt, col))};
}
bool Statement::IsNull(int col) const {
  return Type(col) == SQLITE_NULL;
}
int Statement::Type(int col) const {
  return sqlite3_column_type(Checked(col), col);
}

}  // namespace courtmere
