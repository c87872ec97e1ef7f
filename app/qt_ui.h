// The Ui services with Qt's dialogs: message boxes and questions titled
// "Courtmere", the progress window frmMessage, and the file dialogs.
#pragma once

#include <QPointer>
#include <QString>

#include "platform/ui.h"

class QWidget;

namespace courtmere::app {

class ProgressWindow;

class QtUi : public Ui {
 public:
  QtUi() = default;

  // The window the dialogs belong to; the progress window is made over it.
  void SetWindow(QWidget* window);

  void Message(std::string_view text) override;
  bool Ask(std::string_view question) override;
  void ShowProgress(std::string_view caption) override;
  void SetProgress(int percent) override;
  void HideProgress() override;
  std::optional<std::filesystem::path> OpenFile(std::string_view title,
                                                const std::filesystem::path& folder,
                                                std::string_view filter) override;
  std::optional<std::filesystem::path> SaveFile(std::string_view title,
                                                const std::filesystem::path& folder,
                                                std::string_view filter) override;
  // Handles the window system's events, so a long flow keeps the windows
  // painted and the progress bar moving.
  void Pump() override;

 private:
  QPointer<QWidget> window_;
  QPointer<ProgressWindow> progress_;
};

// A filter written "Description (*.EXT)|*.EXT" as a Qt dialog filter that
// matches the ending in either case: "Description (*.EXT *.ext)".
QString DialogFilter(std::string_view filter);

}  // namespace courtmere::app
