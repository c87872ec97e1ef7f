// frmMessage: the status window of a long flow, a caption over a bar.
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace courtmere::app {

class ProgressWindow : public QDialog {
  Q_OBJECT

 public:
  explicit ProgressWindow(QWidget* parent = nullptr);

  // Shows the window with the caption and an empty bar.
  void Start(const QString& caption);
  void SetPercent(int percent);

 private:
  QLabel* caption_;
  QProgressBar* bar_;
};

}  // namespace courtmere::app
