// The main window's history entries: the record books, the school's, the
// coach's and the tournaments' history, the top coaches, and the reports.
#include "app/history_lists_screen.h"
#include "app/main_window.h"
#include "app/print_stats_screen.h"
#include "app/records_screen.h"
#include "app/school_history_screen.h"
#include "history/exports.h"
#include "store/session.h"

namespace courtmere::app {

void MainWindow::RegisterHistoryCommands() {
  using Books = RecordsScreen::Books;
  using List = HistoryListScreen::List;
  On("mnuNationalRecords", [this] { Show<RecordsScreen>(Books::kNational); });
  On("MnuConferenceRecord", [this] { Show<RecordsScreen>(Books::kConference); });
  On("mnuManageRecord", [this] { Show<RecordsScreen>(Books::kTeam); });
  On("mnuHistoryCoach", [this] { Show<HistoryListScreen>(List::kCoach); });
  On("mnuHistoryNCT", [this] { Show<HistoryListScreen>(List::kNct); });
  On("mnuHistoryACT", [this] { Show<HistoryListScreen>(List::kAct); });
  On("mnuHistorySchool", [this] { Show<SchoolHistoryScreen>(); });
  On("mnuHeadlinesCoaches", [this] { Show<HistoryListScreen>(List::kTopCoaches); });
  const auto report = [this](ReportKind kind) {
    RunReport(session_, static_cast<int>(kind), session_.humanSchool);
  };
  On("mnuOutputDraftJSB", [report] { report(ReportKind::kJsb); });
  On("mnuOutputDraftFBB", [report] { report(ReportKind::kFbb); });
  On("mnuOutputMochDraft", [report] { report(ReportKind::kDraft); });
  On("mnuOutputTeamStats", [this] { Show<PrintStatsScreen>(PrintStatsScreen::Mode::kStats); });
  On("mnuOutputRoster", [this] { Show<PrintStatsScreen>(PrintStatsScreen::Mode::kRoster); });
}

}  // namespace courtmere::app
