#include "screens/record_list.h"

#include <fmt/format.h>

#include "history/record_update.h"
#include "platform/numeric.h"
#include "screens/display_format.h"
#include "store/store.h"

namespace courtmere {

namespace {

// A percentage is rounded to three places and shown times 100 with "%";
// an average with one decimal; a total as a whole number.
std::string MarkValue(const RecordGroup& g, double value) {
  if (g.percent) return fmt::format("{:g}%", Round(value, 3) * 100);
  if (g.average) return FormatOneDecimal(value);
  return fmt::format("{}", CInt(value));
}

std::vector<std::string> Column(Store& store, const char* sql) {
  std::vector<std::string> names;
  for (Rows r = store.Query(sql); r.Next();) names.push_back(r.Text(0));
  return names;
}

}  // namespace

std::vector<RecordRow> RecordList(Store& store, const std::string& book, bool career) {
  const RecordBook marks = ReadRecordBook(store, book.empty() ? "National" : book);
  std::vector<RecordRow> rows;
  if (!(marks.marks[0].value > 0)) return rows;
  const auto& groups = RecordGroups();
  for (int i = 0; i < kRecordGroups; ++i) {
    if (groups[i].career != career) continue;
    const RecordMark& m = marks.marks[i];
    if (!(m.value > 0)) {
      rows.push_back({groups[i].label, "", "", "", ""});
      continue;
    }
    rows.push_back(
        {groups[i].label, MarkValue(groups[i], m.value), m.player, std::to_string(m.year), m.team});
  }
  return rows;
}

std::vector<std::string> RecordBookSchools(Store& store) {
  return Column(store, "SELECT SchoolName FROM Team ORDER BY SchoolName ASC");
}

std::vector<std::string> RecordBookConferences(Store& store) {
  return Column(store, "SELECT Conference FROM League ORDER BY Conference ASC");
}

}  // namespace courtmere
