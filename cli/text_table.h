// A plain text table for the terminal: columns with one- or two-line
// headings, left- or right-aligned, padded to their widest cell.
#pragma once

#include <string>
#include <vector>

namespace courtmere::cli {

class TextTable {
 public:
  enum Align { kLeft, kRight };

  // A column headed by `top` over `bottom` (a one-line heading when `bottom`
  // is empty). A table whose headings are all empty prints none.
  void AddColumn(std::string top, std::string bottom, Align align);
  // A row with one cell per column; missing cells are blank.
  void AddRow(std::vector<std::string> cells);
  // A mark printed in front of a row (the user's own school).
  void MarkLastRow(char mark) { marks_.back() = mark; }

  std::string Render() const;

 private:
  struct Column {
    std::string top, bottom;
    Align align;
  };
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
  std::vector<char> marks_;
};

}  // namespace courtmere::cli
