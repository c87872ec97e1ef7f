#include "store/seed_loader.h"

#include <SQLiteCpp/Exception.h>

#include <charconv>
#include <cstdlib>
#include <vector>

#include "store/csv_reader.h"
#include "store/store.h"

namespace courtmere {
namespace {

struct ColumnType {
  std::string name;
  std::string type;  // INTEGER, REAL or TEXT
};

std::vector<ColumnType> TableColumns(Store& store, std::string_view table) {
  std::vector<ColumnType> columns;
  for (Rows rows = store.Query("SELECT name, type FROM pragma_table_info(?)", table);
       rows.Next();) {
    columns.push_back({rows.Text(0), rows.Text(1)});
  }
  return columns;
}

std::optional<int64_t> ParseInteger(const std::string& text) {
  int64_t value = 0;
  const char* begin = text.data();
  const char* end = text.data() + text.size();
  if (begin != end && *begin == '+') ++begin;
  auto [ptr, ec] = std::from_chars(begin, end, value);
  if (ec != std::errc() || ptr != end || begin == end) return std::nullopt;
  return value;
}

std::optional<double> ParseReal(const std::string& text) {
  if (text.empty()) return std::nullopt;
  char* end = nullptr;
  double value = std::strtod(text.c_str(), &end);
  if (end != text.c_str() + text.size()) return std::nullopt;
  return value;
}

class SeedFileLoader {
 public:
  SeedFileLoader(Store& store, std::string_view path, std::string_view table)
      : store_(store), path_(path), table_(table) {}

  void Load(std::string_view csvText) {
    std::vector<CsvRecord> records;
    try {
      records = ReadCsv(csvText);
    } catch (const std::runtime_error& e) {
      Fail(e.what());
    }
    if (records.empty()) Fail("line 1: the file has no header");
    MapHeader(records.front());
    const std::string sql = InsertSql();
    for (size_t i = 1; i < records.size(); ++i) InsertRow(sql, records[i]);
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const { throw SeedError(path_ + " " + what); }
  [[noreturn]] void FailAt(int line, const std::string& what) const {
    Fail("line " + std::to_string(line) + ": " + what);
  }

  void MapHeader(const CsvRecord& header) {
    const std::vector<ColumnType> columns = TableColumns(store_, table_);
    if (columns.empty()) FailAt(header.line, "there is no table " + table_);
    for (const std::string& name : header.fields) {
      const ColumnType* match = nullptr;
      for (const ColumnType& c : columns) {
        if (c.name == name) match = &c;
      }
      if (match == nullptr) FailAt(header.line, "the table " + table_ + " has no column " + name);
      header_.push_back(*match);
    }
  }

  std::string InsertSql() const {
    std::string sql = "INSERT INTO " + table_ + " (";
    std::string marks;
    for (const ColumnType& c : header_) {
      if (!marks.empty()) {
        sql += ", ";
        marks += ", ";
      }
      sql += c.name;
      marks += '?';
    }
    return sql + ") VALUES (" + marks + ")";
  }

  Value FieldValue(const CsvRecord& record, size_t i) const {
    const std::string& text = record.fields[i];
    const ColumnType& column = header_[i];
    if (text.empty() && !record.quoted[i]) return nullptr;
    if (column.type == "INTEGER") {
      if (auto v = ParseInteger(text)) return *v;
      FailAt(record.line, column.name + " must be a whole number, not \"" + text + "\"");
    }
    if (column.type == "REAL") {
      if (auto v = ParseReal(text)) return *v;
      FailAt(record.line, column.name + " must be a number, not \"" + text + "\"");
    }
    return text;
  }

  void InsertRow(const std::string& sql, const CsvRecord& record) {
    if (record.fields.size() != header_.size()) {
      FailAt(record.line, "expected " + std::to_string(header_.size()) + " fields, found " +
                              std::to_string(record.fields.size()));
    }
    std::vector<Value> values;
    for (size_t i = 0; i < record.fields.size(); ++i) values.push_back(FieldValue(record, i));
    try {
      store_.ExecValues(sql, values);
    } catch (const SQLite::Exception& e) {
      FailAt(record.line, e.what());
    }
  }

  Store& store_;
  std::string path_;
  std::string table_;
  std::vector<ColumnType> header_;
};

}  // namespace

std::string SeedTableOf(std::string_view path) {
  size_t slash = path.find_last_of("/\\");
  std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  size_t dot = name.rfind('.');
  return std::string(dot == std::string_view::npos ? name : name.substr(0, dot));
}

void LoadSeedCsv(Store& store, std::string_view path, std::string_view table,
                 std::string_view csvText) {
  Store::Transaction tx(store);  // a refused file leaves no rows behind
  SeedFileLoader(store, path, table).Load(csvText);
  tx.Commit();
}

}  // namespace courtmere
