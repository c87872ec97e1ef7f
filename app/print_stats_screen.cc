#include "app/print_stats_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "history/exports.h"
#include "screens/record_list.h"
#include "store/session.h"

namespace courtmere::app {

std::filesystem::path RunReport(Session& session, int kind, const std::string& school) {
  const auto report = static_cast<ReportKind>(kind);
  if (const std::optional<std::string> closed = ReportClosed(session, report)) {
    session.ui.Message(*closed);
    return {};
  }
  try {
    const ReportWritten written = WriteReport(session, report, school);
    session.ui.Message(written.message);
    return written.path;
  } catch (const ReportError& e) {
    session.ui.HideProgress();
    session.ui.Message(e.what());
    return {};
  }
}

PrintStatsScreen::PrintStatsScreen(Session& session, ScreenHost& host, Mode mode, QWidget* parent)
    : Screen(session, host, parent), mode_(mode), schools_(new QComboBox(this)) {
  setObjectName("frmPrintStats");
  schools_->setObjectName("cmbSchool");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(AddButton("cmdFile", "File", [this] { WriteFile(); }));
  buttons->addWidget(AddButton("cmdView", "View", [this] {
    if (WriteFile()) host_.OpenTextFile(written_);
  }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(mode == Mode::kStats ? "The school's statistics to a text file:"
                                                    : "The school's roster to a text file:",
                               this));
  layout->addWidget(schools_);
  layout->addLayout(buttons);
  layout->addStretch();
  resize(420, 160);
  Refresh();
}

QString PrintStatsScreen::Caption() const {
  return mode_ == Mode::kStats ? "Team Stats Report" : "Team Roster Report";
}

QString PrintStatsScreen::Key() const {
  return QString("PrintStats:%1").arg(static_cast<int>(mode_));
}

void PrintStatsScreen::Refresh() {
  const QString chosen = schools_->currentText();
  schools_->clear();
  for (const std::string& s : RecordBookSchools(session_.Db())) schools_->addItem(ToQString(s));
  schools_->setCurrentText(chosen.isEmpty() ? ToQString(session_.humanSchool) : chosen);
}

bool PrintStatsScreen::WriteFile() {
  const ReportKind kind = mode_ == Mode::kStats ? ReportKind::kStats : ReportKind::kRoster;
  written_ = RunReport(session_, static_cast<int>(kind), ToStdString(schools_->currentText()));
  return !written_.empty();
}

}  // namespace courtmere::app
