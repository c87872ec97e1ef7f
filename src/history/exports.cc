#include "history/exports.h"

#include <fmt/format.h>

#include <fstream>
#include <initializer_list>

#include "history/draft_pool.h"
#include "history/text_reports.h"
#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere {

namespace {

bool EntriesOpen(const MenuGateState& gate, std::initializer_list<const char*> entries) {
  for (const char* entry : entries) {
    if (!gate.Open(entry)) return false;
  }
  return true;
}

std::filesystem::path ReportsFolder(Session& session) {
  try {
    return session.folder.EnsureFolder("\\reports\\");
  } catch (const std::exception& e) {
    throw ReportError(fmt::format("The reports folder could not be made: {}", e.what()));
  }
}

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) throw ReportError(fmt::format("The report could not be written to {}", path.string()));
}

}  // namespace

std::optional<std::string> ReportClosed(Session& session, ReportKind kind) {
  const MenuGateState gate = ComputeMenuGate(session.Db());
  const std::string& stage = session.config.Stage;
  switch (kind) {
    case ReportKind::kJsb:
    case ReportKind::kFbb:
      if (EntriesOpen(gate, {"mnuOutput", "mnuOutputDraft"})) return std::nullopt;
      return fmt::format(
          "The draft pool can be exported from the end of the season until the draft; the "
          "dynasty stands in {}.",
          stage);
    case ReportKind::kDraft:
      if (EntriesOpen(gate, {"mnuOutput", "mnuOutputMochDraft"})) return std::nullopt;
      return fmt::format(
          "The NBA Draft list can be written once the draft has run; the dynasty stands in {}.",
          stage);
    case ReportKind::kStats:
      if (EntriesOpen(gate, {"mnuManagement", "mnuManagementTeamStats"})) return std::nullopt;
      return fmt::format("Team statistics can't be written in the stage {}.", stage);
    case ReportKind::kRoster:
      if (EntriesOpen(gate, {"mnuManagement", "mnuManagementRoster"})) return std::nullopt;
      return fmt::format("The team roster can't be written in the stage {}.", stage);
  }
  return std::nullopt;
}

ReportWritten WriteReport(Session& session, ReportKind kind, const std::string& school) {
  const int year = session.config.CurrYear;
  const std::filesystem::path folder = ReportsFolder(session);
  ReportWritten written;
  std::string text;
  switch (kind) {
    case ReportKind::kJsb:
      session.ui.ShowProgress("Creating Draft File");
      text = JsbDraftPool(session);
      written.path = folder / fmt::format("JSBdraftpool{}.csv", year);
      break;
    case ReportKind::kFbb:
      session.ui.ShowProgress("Creating Draft File");
      text = FbbDraftPool(session);
      written.path = folder / fmt::format("FBBdraftpool{}.txt", year);
      break;
    case ReportKind::kDraft:
      text = DraftReport(session.Db());
      written.path = folder / fmt::format("{}MochDraft.txt", year);
      break;
    case ReportKind::kStats:
      text = TeamStatsReport(session, school);
      written.path = folder / fmt::format("{}stats{}.txt", school, year);
      break;
    case ReportKind::kRoster:
      text = RosterReport(session.Db(), school, year);
      written.path = folder / fmt::format("{}Roster{}.txt", school, year);
      break;
  }
  session.ui.HideProgress();
  WriteFile(written.path, text);
  const std::string path = written.path.string();
  switch (kind) {
    case ReportKind::kJsb:
    case ReportKind::kFbb:
      written.message = "The draft pool has been saved in the file " + path;
      break;
    case ReportKind::kDraft:
      written.message = "This season's Moch Draft can be found at " + path;
      break;
    case ReportKind::kStats:
      written.message = "Your Team Stats have been saved in the file " + path;
      break;
    case ReportKind::kRoster:
      written.message = "Your team roster can be found at " + path;
      break;
  }
  return written;
}

}  // namespace courtmere
