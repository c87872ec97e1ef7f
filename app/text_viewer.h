// A text file shown read-only in a fixed-width font: a game's play-by-play
// log, or any report the program writes.
#pragma once

#include <filesystem>

#include "app/screen.h"

class QPlainTextEdit;

namespace courtmere::app {

class TextViewer : public Screen {
  Q_OBJECT

 public:
  TextViewer(Session& session, ScreenHost& host, std::filesystem::path file,
             QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;
  QString Text() const;

 private:
  std::filesystem::path file_;
  QPlainTextEdit* text_;
};

}  // namespace courtmere::app
