// Loads one seed file into its table, checking every row against the table:
// each header name must be a column, each row must have as many fields as the
// header, a whole number must stand in an integer column and a number in a
// float column. An empty unquoted field is NULL. A bad file is refused whole
// with a message naming the file and the line.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace courtmere {

class Store;

class SeedError : public std::runtime_error {
 public:
  explicit SeedError(const std::string& what) : std::runtime_error(what) {}
};

// `path` names the file in messages ("data/seed/Team.csv"); `table` is the
// table the rows go into.
void LoadSeedCsv(Store& store, std::string_view path, std::string_view table,
                 std::string_view csvText);

// The table a seed file fills: its file name without folder and extension.
std::string SeedTableOf(std::string_view path);

}  // namespace courtmere
