// What the benchmarks of whole flows share: a program folder of their own
// started from a copy of a store, and the stores they start from, each made
// once per run: the blank store and the standard new dynasty (St. John's in
// the MVC, the WAC and the Atlantic 10).
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/scripted_ui.h"
#include "screens/new_dynasty_run.h"
#include "store/blank_store.h"
#include "store/session.h"

namespace courtmere {

inline NewDynastyRequest Request() {
  NewDynastyRequest request;
  request.conferences = {"MVC", "WAC", "Atlantic 10"};
  request.school = "St. John's";
  request.coach = "D'Angelo O'Neil";
  return request;
}

// A program folder of its own whose store starts as a copy of `store`.
class BenchProgram {
 public:
  BenchProgram(const std::string& tag, const std::filesystem::path& store, uint64_t seed)
      : root_(std::filesystem::temp_directory_path() / ("courtmere-bench-" + tag)) {
    std::filesystem::remove_all(root_);
    std::filesystem::create_directories(root_);
    session_ = std::make_unique<Session>(ProgramFolder(root_), Rng(seed), ui_);
    std::filesystem::copy_file(store, session_->folder.Store());
    session_->store = std::make_unique<Store>(session_->folder.Store());
    session_->config = LoadConfig(session_->Db());
  }
  ~BenchProgram() {
    session_.reset();
    std::filesystem::remove_all(root_);
  }
  Session& session() { return *session_; }

 private:
  std::filesystem::path root_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
};

// The stores the iterations start from, made once.
inline const std::filesystem::path& BlankStore() {
  static const std::filesystem::path file = [] {
    const std::filesystem::path f =
        std::filesystem::temp_directory_path() / "courtmere-bench-blank.dat";
    BuildBlankStore(f);
    return f;
  }();
  return file;
}

inline const std::filesystem::path& NewDynastyStore() {
  static const std::filesystem::path file = [] {
    const std::filesystem::path f =
        std::filesystem::temp_directory_path() / "courtmere-bench-dynasty.dat";
    BenchProgram program("dynasty-template", BlankStore(), 1);
    if (!RunNewDynasty(program.session(), Request())) throw std::runtime_error("File > New");
    program.session().store.reset();
    std::filesystem::copy_file(program.session().folder.Store(), f,
                               std::filesystem::copy_options::overwrite_existing);
    return f;
  }();
  return file;
}

}  // namespace courtmere
