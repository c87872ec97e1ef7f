// frmOptions: the four options of the dynasty, from File > Dynasty Options
// and the intro's Options label.
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  explicit OptionsDialog(Session& session, QWidget* parent = nullptr);

  // Copies the boxes to the session and the store (cmdSubmit).
  void Submit();

 private:
  Session& session_;
  QCheckBox* playByPlay_;
  QCheckBox* autosave_;
  QCheckBox* boxScores_;
  QComboBox* speed_;
};

}  // namespace courtmere::app
