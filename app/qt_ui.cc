#include "app/qt_ui.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include "app/progress_window.h"
#include "app/screen.h"

namespace courtmere::app {
namespace {

std::filesystem::path ToPath(const QString& file) {
  return std::filesystem::path(file.toStdString());
}

}  // namespace

QString DialogFilter(std::string_view filter) {
  const QString text = ToQString(filter);
  const QString description = text.section('|', 0, 0);
  const QString pattern = text.section('|', 1, 1);
  const int open = description.indexOf('(');
  const QString name = open < 0 ? description.trimmed() : description.left(open).trimmed();
  if (pattern.isEmpty()) return description;
  return QString("%1 (%2 %3)").arg(name, pattern.toUpper(), pattern.toLower());
}

void QtUi::SetWindow(QWidget* window) {
  window_ = window;
  progress_ = new ProgressWindow(window);
}

void QtUi::Message(std::string_view text) {
  QMessageBox box(QMessageBox::Information, ToQString(kProgramTitle), ToQString(text),
                  QMessageBox::Ok, window_);
  box.exec();
}

bool QtUi::Ask(std::string_view question) {
  QMessageBox box(QMessageBox::Question, ToQString(kProgramTitle), ToQString(question),
                  QMessageBox::Yes | QMessageBox::No, window_);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void QtUi::ShowProgress(std::string_view caption) {
  if (!progress_) return;
  progress_->Start(ToQString(caption));
  Pump();
}

void QtUi::SetProgress(int percent) {
  if (!progress_) return;
  progress_->SetPercent(percent);
  Pump();
}

void QtUi::HideProgress() {
  if (progress_) progress_->hide();
}

std::optional<std::filesystem::path> QtUi::OpenFile(std::string_view title,
                                                    const std::filesystem::path& folder,
                                                    std::string_view filter) {
  const QString file = QFileDialog::getOpenFileName(
      window_, ToQString(title), QString::fromStdString(folder.string()), DialogFilter(filter));
  if (file.isEmpty()) return std::nullopt;
  return ToPath(file);
}

std::optional<std::filesystem::path> QtUi::SaveFile(std::string_view title,
                                                    const std::filesystem::path& folder,
                                                    std::string_view filter) {
  const QString file = QFileDialog::getSaveFileName(
      window_, ToQString(title), QString::fromStdString(folder.string()), DialogFilter(filter));
  if (file.isEmpty()) return std::nullopt;
  return ToPath(file);
}

void QtUi::Pump() {
  QApplication::processEvents();
}

}  // namespace courtmere::app
