// The blank store: the schema and the seed tables compiled into the program.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace courtmere {

class Store;

// Builds a blank store at `file` (replacing any file there) from the
// compiled-in schema and seed rows. Writes through a temporary file, so a
// failure leaves no half-built store behind. Throws SeedError on a bad seed
// row, naming the file and line.
void BuildBlankStore(const std::filesystem::path& file);

// The seed tables, in load order, with the rows each holds in a store.
std::vector<std::string> SeedTables();

}  // namespace courtmere
