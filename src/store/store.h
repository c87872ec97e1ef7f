// The dynasty store: one SQLite file and the operations every flow uses on it.
//
// Every value goes into SQL as a bound parameter, never spliced into the SQL
// text: school and coach names hold apostrophes ("St. John's"). Statements are
// prepared once and cached by their SQL text, so a query that runs thousands
// of times a day costs microseconds. Tables are STRICT: writing 70.5 into an
// integer column is an error, not silent data.
//
//   store.Exec("UPDATE Team SET Prestige = ? WHERE SchoolName = ?", 61.5, name);
//   for (auto rows = store.Query("SELECT Id, Name FROM Player WHERE Team = ?", name);
//        rows.Next();) { int id = rows.Int(0); std::string n = rows.Text(1); }
//   store.Append("Coach", {{"Name", name}, {"Team", school}, {"Salary", 40000}});
#pragma once

#include <SQLiteCpp/Database.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "store/statement.h"

namespace courtmere {

// A value for a column: NULL, an integer, a float or a text.
using Value = std::variant<std::nullptr_t, int64_t, double, std::string>;

// Binds a C++ value to a statement parameter (1-based).
void BindValue(Statement& stmt, int index, std::nullptr_t);
void BindValue(Statement& stmt, int index, int value);
void BindValue(Statement& stmt, int index, int64_t value);
void BindValue(Statement& stmt, int index, double value);
void BindValue(Statement& stmt, int index, std::string_view value);
void BindValue(Statement& stmt, int index, const std::string& value);
void BindValue(Statement& stmt, int index, const char* value);
void BindValue(Statement& stmt, int index, const Value& value);

// The settings SQLite takes before its first use; call before opening any
// database file. Runs once.
void ConfigureSqliteOnce();

// A forward-only reader over a query's rows. Columns are read by position or
// by name; a NULL reads as 0, 0.0 or an empty text. The statement goes back to
// the store's cache when the reader is destroyed.
class Rows {
 public:
  Rows(Statement* stmt, std::unique_ptr<Statement> owned, bool* inUse);
  Rows(Rows&& other) noexcept;
  Rows& operator=(Rows&&) = delete;
  Rows(const Rows&) = delete;
  ~Rows();

  // Moves to the next row; false past the last one.
  bool Next();

  int Int(int col) const;
  int64_t Int64(int col) const;
  double Double(int col) const;
  std::string Text(int col) const;
  // The text of a column, valid until the next step or column read.
  std::string_view TextView(int col) const;
  // Writes the text of a column over `out`, reusing its storage.
  void TextInto(int col, std::string& out) const;
  bool IsNull(int col) const;
  Value Get(int col) const;

  int Int(const char* name) const;
  int64_t Int64(const char* name) const;
  double Double(const char* name) const;
  std::string Text(const char* name) const;
  bool IsNull(const char* name) const;
  Value Get(const char* name) const;

  int ColumnCount() const;
  std::string ColumnName(int col) const;

 private:
  Statement* stmt_;
  std::unique_ptr<Statement> owned_;
  bool* inUse_;
};

class Store {
 public:
  // Opens an existing store file. Throws StoreError, with SQLite's result
  // code, when it is missing, is not a database, or can't be opened now.
  explicit Store(const std::filesystem::path& file);
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  const std::filesystem::path& File() const { return file_; }

  // Runs a statement with bound parameters; returns the rows it changed.
  template <class... Args>
  int Exec(std::string_view sql, const Args&... args) {
    Cached c = Acquire(sql);
    BindAll(*c.stmt, args...);
    return Run(c);
  }

  // Runs a statement with a list of values bound in order.
  int ExecValues(std::string_view sql, const std::vector<Value>& values);

  // Opens a query for reading forward.
  template <class... Args>
  Rows Query(std::string_view sql, const Args&... args) {
    Cached c = Acquire(sql);
    BindAll(*c.stmt, args...);
    return Rows(c.stmt, std::move(c.owned), c.inUse);
  }

  // The first column of the first row, if there is a row and it is not NULL.
  template <class... Args>
  std::optional<int64_t> ScalarInt(std::string_view sql, const Args&... args) {
    Rows rows = Query(sql, args...);
    if (!rows.Next() || rows.IsNull(0)) return std::nullopt;
    return rows.Int64(0);
  }
  template <class... Args>
  std::optional<double> ScalarDouble(std::string_view sql, const Args&... args) {
    Rows rows = Query(sql, args...);
    if (!rows.Next() || rows.IsNull(0)) return std::nullopt;
    return rows.Double(0);
  }
  template <class... Args>
  std::optional<std::string> ScalarText(std::string_view sql, const Args&... args) {
    Rows rows = Query(sql, args...);
    if (!rows.Next() || rows.IsNull(0)) return std::nullopt;
    return rows.Text(0);
  }

  // Adds one row to a table, naming the columns it sets; the others take
  // their defaults. Returns the new row's rowid.
  using Column = std::pair<std::string_view, Value>;
  int64_t Append(std::string_view table, std::initializer_list<Column> columns) {
    return Append(table, columns.begin(), columns.size());
  }
  int64_t Append(std::string_view table, const std::vector<Column>& columns) {
    return Append(table, columns.data(), columns.size());
  }

  // Seeks a name in the pools by Id (the FName and LName tables).
  std::string FirstName(int id);
  std::string LastName(int id);

  // Runs SQL text with several statements and no parameters (schema scripts).
  void ExecScript(const std::string& sql);

  bool TableExists(std::string_view table);
  bool ColumnExists(std::string_view table, std::string_view column);
  int64_t RowCount(std::string_view table);

  SQLite::Database& Db() { return db_; }

  // A transaction; nested ones become savepoints. Rolls back unless committed.
  class Transaction {
   public:
    explicit Transaction(Store& store);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

   private:
    Store& store_;
    int depth_;
    bool done_ = false;
  };

 private:
  struct Entry {
    std::unique_ptr<Statement> stmt;
    bool inUse = false;
  };
  // A statement ready for binding: the cached one, or a private one when the
  // cached statement is still being read by an outer Rows.
  struct Cached {
    Statement* stmt;
    std::unique_ptr<Statement> owned;
    bool* inUse;
  };

  void SetSessionPragmas();
  Cached Acquire(std::string_view sql);
  int64_t Append(std::string_view table, const Column* columns, size_t count);
  int Run(Cached& c);

  template <class... Args>
  static void BindAll(Statement& stmt, const Args&... args) {
    int index = 0;
    (BindValue(stmt, ++index, args), ...);
  }

  std::filesystem::path file_;
  SQLite::Database db_;
  // Looked up by the SQL text as given, without building a string.
  struct SqlHash {
    using is_transparent = void;
    size_t operator()(std::string_view sql) const { return std::hash<std::string_view>{}(sql); }
  };
  std::unordered_map<std::string, Entry, SqlHash, std::equal_to<>> cache_;
  int txDepth_ = 0;
};

}  // namespace courtmere
