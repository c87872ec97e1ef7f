#include "text_table.h"

#include <algorithm>

namespace courtmere::cli {

namespace {

std::string Pad(const std::string& text, size_t width, TextTable::Align align) {
  const std::string fill(width > text.size() ? width - text.size() : 0, ' ');
  return align == TextTable::kRight ? fill + text : text + fill;
}

}  // namespace

void TextTable::AddColumn(std::string top, std::string bottom, Align align) {
  columns_.push_back({std::move(top), std::move(bottom), align});
}

void TextTable::AddRow(std::vector<std::string> cells) {
  cells.resize(columns_.size());
  rows_.push_back(std::move(cells));
  marks_.push_back(' ');
}

std::string TextTable::Render() const {
  std::vector<size_t> widths;
  bool headed = false;
  bool twoLines = false;
  for (size_t c = 0; c < columns_.size(); ++c) {
    size_t w = std::max(columns_[c].top.size(), columns_[c].bottom.size());
    for (const auto& row : rows_) w = std::max(w, row[c].size());
    widths.push_back(w);
    headed = headed || !columns_[c].top.empty();
    twoLines = twoLines || !columns_[c].bottom.empty();
  }
  auto line = [&](char mark, auto cell) {
    std::string out(1, mark);
    for (size_t c = 0; c < columns_.size(); ++c) {
      out += ' ';
      out += Pad(cell(c), widths[c], columns_[c].align);
    }
    while (!out.empty() && out.back() == ' ') out.pop_back();
    return out + '\n';
  };
  std::string out;
  if (headed) out += line(' ', [&](size_t c) { return columns_[c].top; });
  if (twoLines) out += line(' ', [&](size_t c) { return columns_[c].bottom; });
  for (size_t r = 0; r < rows_.size(); ++r) {
    out += line(marks_[r], [&](size_t c) { return rows_[r][c]; });
  }
  return out;
}

}  // namespace courtmere::cli
