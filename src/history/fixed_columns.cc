#include "history/fixed_columns.h"

namespace courtmere {

std::string FixedLine(const std::string& rule, const std::vector<std::string>& values) {
  std::string line;
  size_t pos = 0;
  for (const std::string& value : values) {
    const size_t start = rule.find('-', pos);
    if (start == std::string::npos) break;
    size_t end = rule.find(' ', start);
    if (end == std::string::npos) end = rule.size();
    line.append(start - pos, ' ');
    const size_t width = end - start;
    line += value.substr(0, width);
    line.append(width - std::min(width, value.size()), ' ');
    pos = end;
  }
  return line;
}

}  // namespace courtmere
