// A prepared SQLite statement, driven through SQLite's own interface.
//
// The store's hot paths (a game loads two teams, column by column) read
// values straight from the statement; errors are raised as SQLite::Exception
// like every other failure of the store's database.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace courtmere {

class Statement {
 public:
  Statement(sqlite3* db, std::string_view sql);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  void BindNull(int index);
  void Bind(int index, int64_t value);
  void Bind(int index, double value);
  void Bind(int index, std::string_view text);

  // Moves to the next row; false when there is none.
  bool Step();
  // Runs a statement that returns no rows.
  void Run();
  // Back to the start, with every parameter unbound.
  void Reset() noexcept;

  bool HasRow() const { return hasRow_; }
  int ColumnCount() const { return columns_; }
  std::string ColumnName(int col) const;
  // The index of a named column; throws when there is none.
  int ColumnIndex(std::string_view name) const;

  // The value of a column of the current row; throws when there is no row or
  // no such column.
  int Int(int col) const;
  int64_t Int64(int col) const;
  double Double(int col) const;
  // Valid until the next step or column read.
  std::string_view Text(int col) const;
  bool IsNull(int col) const;
  // SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, SQLITE_BLOB or SQLITE_NULL.
  int Type(int col) const;

 private:
  sqlite3_stmt* Checked(int col) const;
  void Check(int rc) const;

  sqlite3* db_;
  sqlite3_stmt* stmt_ = nullptr;
  int columns_ = 0;
  bool hasRow_ = false;
};

}  // namespace courtmere
