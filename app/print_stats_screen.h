// frmPrintStats: a list of schools and the commands File and View; in the
// mode "Stats" it makes the school's statistics report, else its roster.
// Design decision: the printed copy is the text viewer's, which shows the
// file as it was written.
#pragma once

#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class PrintStatsScreen : public Screen {
  Q_OBJECT

 public:
  enum class Mode { kStats, kRoster };

  PrintStatsScreen(Session& session, ScreenHost& host, Mode mode, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  QComboBox* Schools() const { return schools_; }
  // File: writes the report and tells the user where; true when written.
  bool WriteFile();

 private:
  Mode mode_;
  QComboBox* schools_;
  std::filesystem::path written_;
};

// Writes a report as its menu entry asks and tells the user the outcome: why
// it is closed, where it went, or why it could not be written.
std::filesystem::path RunReport(Session& session, int kind, const std::string& school);

}  // namespace courtmere::app
