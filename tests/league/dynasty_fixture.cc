#include "league/dynasty_fixture.h"

#include <fmt/format.h>

#include <stdexcept>
#include <vector>

#include "store/blank_store.h"

namespace courtmere::testing {

namespace {

// The shared dynasty's store, built at the first use.
const std::filesystem::path& TemplateStore() {
  static TempFolder folder;
  static const std::filesystem::path file = [] {
    ScriptedUi ui;
    Session session(ProgramFolder(folder.Path()), Rng(1), ui);
    BuildBlankStore(session.folder.Store());
    session.store = std::make_unique<Store>(session.folder.Store());
    if (!RunNewDynasty(session, StandardRequest())) {
      throw std::runtime_error("the shared dynasty could not be built");
    }
    session.store.reset();
    return session.folder.Store();
  }();
  return file;
}

}  // namespace

NewDynastyRequest StandardRequest() {
  NewDynastyRequest request;
  request.conferences = {"MVC", "WAC", "Atlantic 10"};
  request.school = kUserSchool;
  request.coach = kUserCoach;
  return request;
}

BlankProgram::BlankProgram(uint64_t seed) {
  session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(seed), ui_);
  BuildBlankStore(session_->folder.Store());
  session_->store = std::make_unique<Store>(session_->folder.Store());
  session_->config = LoadConfig(session_->Db());
}

DynastyFixture::DynastyFixture(uint64_t seed) : BlankProgram(seed) {
  session_->store.reset();
  std::filesystem::copy_file(TemplateStore(), session_->folder.Store(),
                             std::filesystem::copy_options::overwrite_existing);
  session_->store = std::make_unique<Store>(session_->folder.Store());
  session_->config = LoadConfig(session_->Db());
}

void DynastyFixture::AddNonConferenceGames(int games) {
  const int64_t first =
      store().ScalarInt("SELECT coalesce(max(GameNo), 0) FROM NonConfSchedule").value_or(0) + 1;
  for (int i = 0; i < games; ++i) {
    store().Append("NonConfSchedule", {{"GameNo", first + i},
                                       {"Week", int64_t{6 + i}},
                                       {"GameDay", "Thursday"},
                                       {"HomeTeam", kUserSchool},
                                       {"HomeConf", "Big East"},
                                       {"AwayTeam", "Duke"},
                                       {"AwayConf", "ACC"},
                                       {"GameType", "NonConference"}});
  }
}

std::string DumpStore(Store& store) {
  std::vector<std::string> tables;
  for (Rows rows = store.Query("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
       rows.Next();) {
    tables.push_back(rows.Text(0));
  }
  std::string out;
  for (const std::string& table : tables) {
    out += "== " + table + "\n";
    for (Rows rows = store.Query("SELECT * FROM " + table + " ORDER BY rowid"); rows.Next();) {
      for (int c = 0; c < rows.ColumnCount(); ++c) {
        const Value v = rows.Get(c);
        if (std::holds_alternative<std::nullptr_t>(v)) {
          out += "NULL";
        } else if (const auto* i = std::get_if<int64_t>(&v)) {
          out += std::to_string(*i);
        } else if (const auto* d = std::get_if<double>(&v)) {
          out += fmt::format("{:.17g}", *d);
        } else {
          out += std::get<std::string>(v);
        }
        out += '|';
      }
      out += '\n';
    }
  }
  return out;
}

}  // namespace courtmere::testing
