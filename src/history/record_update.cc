#include "history/record_update.h"

#include <fmt/format.h>

#include <optional>
#include <vector>

#include "store/store.h"

namespace courtmere {

namespace {

enum class Scope { kSchool, kConference };

std::vector<std::string> Names(Store& store, const char* sql) {
  std::vector<std::string> names;
  for (Rows r = store.Query(sql); r.Next();) names.push_back(r.Text(0));
  return names;
}

// The best line of the scope for one mark: the season's figures or the
// careers, of the players still on a first-division roster. Of equal
// figures the lower player Id comes first, so a rerun picks the same man.
std::optional<RecordMark> BestLine(Store& store, const RecordGroup& g, Scope scope,
                                   const std::string& name) {
  const std::string sql = fmt::format(
      "SELECT {0}, p.Name, p.Team FROM {1} AS s, Player AS p, Team AS t WHERE s.Id = p.Id AND "
      "p.Team = t.SchoolName AND {2} = ? {3}ORDER BY {0} DESC, p.Id ASC LIMIT 1",
      g.source, g.career ? "CareerPlayerStats" : "PlayerStats",
      scope == Scope::kSchool ? "p.Team" : "t.Conference", g.qualifier);
  Rows r = store.Query(sql, name);
  if (!r.Next()) return std::nullopt;
  return RecordMark{r.Double(0), r.Text(1), r.Text(2), 0};
}

void UpdateBook(Store& store, Scope scope, const std::string& name, int year) {
  RecordBook book = ReadRecordBook(store, name);
  book.type = name;
  const auto& groups = RecordGroups();
  for (int i = 0; i < kRecordGroups; ++i) {
    const std::optional<RecordMark> best = BestLine(store, groups[i], scope, name);
    if (!best || !(book.marks[i].value < best->value)) continue;
    book.marks[i] = *best;
    book.marks[i].year = year;
  }
  // A school's book names the school itself as the team of its marks.
  if (scope == Scope::kSchool) {
    for (RecordMark& m : book.marks) {
      if (m.team.empty()) m.team = name;
    }
  }
  WriteRecordBook(store, book);
}

void UpdateNationalBook(Store& store) {
  RecordBook book = ReadRecordBook(store, "National");
  book.type = "National";
  const auto& groups = RecordGroups();
  for (int i = 0; i < kRecordGroups; ++i) {
    const std::string x = GroupColumn(groups[i]);
    Rows r =
        store.Query(fmt::format("SELECT {0}, {0}Player, {0}Team, {0}Year FROM Records "
                                "WHERE {0} IS NOT NULL ORDER BY {0} DESC, Id ASC LIMIT 1",
                                x));
    if (!r.Next() || !(book.marks[i].value < r.Double(0))) continue;
    book.marks[i] = {r.Double(0), r.Text(1), r.Text(2), r.Int(3)};
  }
  WriteRecordBook(store, book);
}

}  // namespace

RecordBook ReadRecordBook(Store& store, const std::string& type) {
  RecordBook book;
  book.type = type;
  const auto& groups = RecordGroups();
  std::string columns;
  for (const RecordGroup& g : groups) {
    const std::string x = GroupColumn(g);
    columns += fmt::format("{0}{1}, {1}Player, {1}Team, {1}Year", columns.empty() ? "" : ", ", x);
  }
  Rows r =
      store.Query("SELECT " + columns + " FROM Records WHERE Type = ? ORDER BY Id LIMIT 1", type);
  if (!r.Next()) return book;
  for (int i = 0; i < kRecordGroups; ++i) {
    book.marks[i] = {r.Double(4 * i), r.Text(4 * i + 1), r.Text(4 * i + 2), r.Int(4 * i + 3)};
  }
  return book;
}

void WriteRecordBook(Store& store, const RecordBook& book) {
  store.Exec("DELETE FROM Records WHERE Type = ?", book.type);
  std::vector<std::string> names;
  std::vector<Store::Column> columns{{"Type", book.type}};
  const auto& groups = RecordGroups();
  names.reserve(4 * kRecordGroups);
  for (int i = 0; i < kRecordGroups; ++i) {
    const RecordMark& m = book.marks[i];
    if (!(m.value > 0)) continue;
    const std::string x = GroupColumn(groups[i]);
    for (const char* suffix : {"", "Player", "Team", "Year"}) names.push_back(x + suffix);
    const size_t n = names.size();
    columns.push_back({names[n - 4], m.value});
    columns.push_back({names[n - 3], m.player});
    columns.push_back({names[n - 2], m.team});
    columns.push_back({names[n - 1], int64_t{m.year}});
  }
  store.Append("Records", columns);
}

void UpdateRecords(Store& store, int year) {
  for (const std::string& school :
       Names(store, "SELECT SchoolName FROM Team ORDER BY SchoolName DESC")) {
    UpdateBook(store, Scope::kSchool, school, year);
  }
  for (const std::string& conference :
       Names(store, "SELECT Conference FROM League ORDER BY Conference DESC")) {
    UpdateBook(store, Scope::kConference, conference, year);
  }
  UpdateNationalBook(store);
}

}  // namespace courtmere
