// The five report files, written into "\reports\" under the program folder
// (made when missing); a rerun overwrites the file. Each is open when the
// main window's entry for it is: the draft pools between the end of the
// season and the draft (Output > Draft Pool), the draft list after the
// draft (Output > NBA Draft), a school's statistics and roster whenever
// Management > Team Stats and Team Roster are open.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace courtmere {

struct Session;

enum class ReportKind { kJsb, kFbb, kDraft, kStats, kRoster };

// A report that could not be written; what() is the message for the user.
class ReportError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Why the report can't be made now, or nothing when it can.
std::optional<std::string> ReportClosed(Session& session, ReportKind kind);

struct ReportWritten {
  std::filesystem::path path;
  std::string message;  // "The draft pool has been saved in the file <path>"...
};

// Writes the report (`school` names the school of a statistics or roster
// report; the others ignore it). Throws ReportError when the folder can't
// be made or the file written. The store is left as it was.
ReportWritten WriteReport(Session& session, ReportKind kind, const std::string& school);

}  // namespace courtmere
