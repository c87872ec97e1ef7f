// Reads comma-separated text as written by spreadsheet programs: a header
// line, then one record per line; a field in double quotes may hold commas,
// line breaks and doubled quotes. Blank lines are skipped.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct CsvRecord {
  int line = 0;  // the line the record starts on, from 1
  std::vector<std::string> fields;
  std::vector<bool> quoted;  // whether each field was in quotes
};

// Throws std::runtime_error("line N: ...") on an unclosed quote or text after
// a closing quote.
std::vector<CsvRecord> ReadCsv(std::string_view text);

}  // namespace courtmere
