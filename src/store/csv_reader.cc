#include "store/csv_reader.h"

#include <stdexcept>

namespace courtmere {
namespace {

class CsvParser {
 public:
  explicit CsvParser(std::string_view text) : text_(text) {}

  std::vector<CsvRecord> Parse() {
    std::vector<CsvRecord> records;
    while (pos_ < text_.size()) {
      if (AtLineEnd()) {
        SkipLineEnd();
        continue;
      }
      records.push_back(ReadRecord());
    }
    return records;
  }

 private:
  bool AtLineEnd() const { return text_[pos_] == '\n' || text_[pos_] == '\r'; }

  void SkipLineEnd() {
    if (text_[pos_] == '\r' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '\n') ++pos_;
    ++pos_;
    ++line_;
  }

  CsvRecord ReadRecord() {
    CsvRecord record;
    record.line = line_;
    while (true) {
      bool quoted = pos_ < text_.size() && text_[pos_] == '"';
      record.fields.push_back(quoted ? ReadQuoted() : ReadPlain());
      record.quoted.push_back(quoted);
      if (pos_ >= text_.size()) break;
      if (text_[pos_] == ',') {
        ++pos_;
        continue;
      }
      SkipLineEnd();
      break;
    }
    return record;
  }

  std::string ReadPlain() {
    size_t start = pos_;
    while (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd()) ++pos_;
    return std::string(text_.substr(start, pos_ - start));
  }

  std::string ReadQuoted() {
    const int startLine = line_;
    ++pos_;  // opening quote
    std::string field;
    while (true) {
      if (pos_ >= text_.size()) {
        throw std::runtime_error("line " + std::to_string(startLine) + ": unclosed quote");
      }
      char c = text_[pos_++];
      if (c == '"') {
        if (pos_ < text_.size() && text_[pos_] == '"') {
          field += '"';
          ++pos_;
          continue;
        }
        break;
      }
      if (c == '\n') ++line_;
      field += c;
    }
    if (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd()) {
      throw std::runtime_error("line " + std::to_string(line_) + ": text after a closing quote");
    }
    return field;
  }

  std::string_view text_;
  size_t pos_ = 0;
  int line_ = 1;
};

}  // namespace

std::vector<CsvRecord> ReadCsv(std::string_view text) {
  return CsvParser(text).Parse();
}

}  // namespace courtmere
