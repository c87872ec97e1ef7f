// The command-line tool's Ui: questions take the scripted answers (Yes when
// none is queued) and messages print on standard output as
// "Courtmere: <text>"; the progress window is a caption and, on a terminal,
// a bar on standard error, so that standard output holds only what a command
// reports.
#pragma once

#include <string>

#include "platform/scripted_ui.h"

namespace courtmere::cli {

class CliUi : public ScriptedUi {
 public:
  CliUi();

  void Message(std::string_view text) override;
  bool Ask(std::string_view question) override;
  void ShowProgress(std::string_view caption) override;
  void SetProgress(int percent) override;
  void HideProgress() override;

 private:
  void EndLine();

  bool terminal_;
  bool lineOpen_ = false;
  std::string caption_;
};

}  // namespace courtmere::cli
