#include "screens/box_score_view.h"

#include <fstream>

#include "store/session.h"

namespace courtmere {
namespace {

constexpr std::string_view kScoreMark = " Score: ";

void ReadHeadLine(std::istream& in, std::string& team, std::string& score) {
  std::string line;
  if (!std::getline(in, line)) return;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const size_t mark = line.rfind(kScoreMark);
  if (mark == std::string::npos) return;
  team = line.substr(0, mark);
  score = line.substr(mark + kScoreMark.size());
}

std::optional<std::string> BoxOf(Store& store, const std::string& table, int gameNo) {
  Rows r = store.Query("SELECT BoxScore FROM " + table + " WHERE GameNo = ?", gameNo);
  if (!r.Next()) return std::nullopt;
  return r.Text(0);
}

}  // namespace

std::optional<std::filesystem::path> BoxScoreFile(Store& store, int gameNo,
                                                  const std::string& conferenceTable) {
  std::optional<std::string> box = BoxOf(store, "NonConfSchedule", gameNo);
  if (!box && !conferenceTable.empty()) box = BoxOf(store, conferenceTable, gameNo);
  if (!box || box->empty()) return std::nullopt;
  std::error_code ec;
  if (!std::filesystem::is_regular_file(*box, ec)) return std::nullopt;
  return std::filesystem::path(*box);
}

BoxScoreHeader ReadBoxScoreHeader(const std::filesystem::path& file) {
  BoxScoreHeader header;
  std::ifstream in(file, std::ios::binary);
  ReadHeadLine(in, header.HomeTeam, header.HomeScore);
  ReadHeadLine(in, header.AwayTeam, header.AwayScore);
  return header;
}

std::optional<int> BoxScorePlayer(Session& session, const std::string& school,
                                  const std::string& abbrName) {
  if (abbrName.empty()) return std::nullopt;
  const auto id = session.Db().ScalarInt(
      "SELECT Id FROM Player WHERE Team = ? AND AbbrName = ? ORDER BY Id", school, abbrName);
  if (!id) {
    session.ui.Message("Error displaying the player. The code is " +
                       std::to_string(kNoSuchPlayerCode));
    return std::nullopt;
  }
  return static_cast<int>(*id);
}

}  // namespace courtmere
