// The dynasty's seed and the random stream of each place of its calendar.
//
// A dynasty made with a fixed seed (--seed, tests, benchmarks) keeps it in
// Config.Seed. Every day step, and every other flow the command-line tool
// runs, starts a stream of its own derived from that seed and from where the
// calendar stands (year, stage, week, day). A season therefore plays the same
// however it is cut into commands, killed and resumed: a day step that is
// played again after a failure starts from the same stream, and nothing that
// ran before it in the same process changes what it draws.
//
// A dynasty made in clock mode (the desktop program) has no seed: its flows
// draw from the session's clock-seeded generator as they always did.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace courtmere {

class Store;
struct Session;

// Config.Seed; none for a dynasty of clock mode or a store made before the
// column was added.
std::optional<uint64_t> LoadDynastySeed(Store& store);
// Writes Config.Seed (NULL for none), adding the column to an older store.
void SaveDynastySeed(Store& store, std::optional<uint64_t> seed);

// The seed the dynasty's flows derive from: the dynasty's own, else the
// fixed seed the session was started with; none in clock mode.
std::optional<uint64_t> FlowSeed(Session& session);

// Reseeds the session's generator for the flow `flow` ("day", "command") at
// the calendar's place in session.config. Does nothing in clock mode.
void SeedForPlace(Session& session, std::string_view flow);

}  // namespace courtmere
