// frmAbout: what the program is.
#pragma once

#include <QDialog>

namespace courtmere::app {

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent = nullptr);
};

}  // namespace courtmere::app
