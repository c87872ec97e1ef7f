// A whole new dynasty for tests: File > New run once per test program with a
// fixed seed (the MVC, the WAC and the Atlantic 10; St. John's, coached by
// D'Angelo O'Neil), its store copied into a fresh program folder for each
// test that asks for one.
#pragma once

#include <memory>
#include <string>

#include "platform/scripted_ui.h"
#include "screens/new_dynasty_run.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {

inline constexpr const char* kUserSchool = "St. John's";
inline constexpr const char* kUserCoach = "D'Angelo O'Neil";

// The request the shared dynasty is built from.
NewDynastyRequest StandardRequest();

// A session on a blank store in a temporary program folder.
class BlankProgram {
 public:
  explicit BlankProgram(uint64_t seed = 1);
  Session& session() { return *session_; }
  Store& store() { return session_->Db(); }
  ScriptedUi& ui() { return ui_; }
  const std::filesystem::path& folder() const { return dir_.Path(); }

 protected:
  TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

// A session on a copy of the shared dynasty.
class DynastyFixture : public BlankProgram {
 public:
  explicit DynastyFixture(uint64_t seed = 7);
  // Non-conference games for the user's school, so that Start Season's
  // first condition holds.
  void AddNonConferenceGames(int games);
  // The whole number `sql` reads, or -1 when it reads nothing.
  int64_t Count(const std::string& sql) { return store().ScalarInt(sql).value_or(-1); }
  // The background school at `nth` in the store's order.
  std::string Background(int nth = 0) {
    return *store().ScalarText("SELECT SchoolName FROM ScrubTeam ORDER BY rowid LIMIT 1 OFFSET ?",
                               nth);
  }
};

// Every row of every table, in a text that two stores share exactly when
// their contents are the same.
std::string DumpStore(Store& store);

}  // namespace courtmere::testing
