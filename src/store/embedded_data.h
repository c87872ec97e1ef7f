// The schema and seed rows compiled into the program (generated at build time
// from data/schema.sql and data/seed/*.csv).
#pragma once

#include <string_view>
#include <vector>

namespace courtmere::embedded {

struct SeedFile {
  std::string_view path;  // "data/seed/<Table>.csv"
  std::string_view text;
};

extern const std::string_view kSchemaSql;
const std::vector<SeedFile>& SeedFiles();

}  // namespace courtmere::embedded
