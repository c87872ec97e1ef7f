#include "app/progress_window.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "platform/ui.h"

namespace courtmere::app {

ProgressWindow::ProgressWindow(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      caption_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
  setObjectName("frmMessage");
  setWindowTitle(QString::fromUtf8(kProgramTitle.data(), kProgramTitle.size()));
  setModal(false);
  caption_->setObjectName("lblMessage");
  caption_->setAlignment(Qt::AlignCenter);
  bar_->setRange(0, 100);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(caption_);
  layout->addWidget(bar_);
  setMinimumWidth(360);
}

void ProgressWindow::Start(const QString& caption) {
  caption_->setText(caption);
  bar_->setValue(0);
  if (parentWidget()) {
    adjustSize();
    move(parentWidget()->geometry().center() - rect().center());
  }
  show();
  raise();
}

void ProgressWindow::SetPercent(int percent) {
  bar_->setValue(std::clamp(percent, 0, 100));
}

}  // namespace courtmere::app
