// The command-line tool's Ui: questions take the scripted answers (Yes when
// none is queued) and messages print on standard error as
// "Courtmere: <text>"; the progress window is a caption and, on a terminal,
// a bar on standard error, so that standard output holds only what a command
// reports.
//
// Design decision: every message box goes to standard error, the program's
// notices as well as its refusals, so that a refusal's reason is always
// there, in the order the program said it, and standard output stays the
// command's own tables.
//
// A long run (a whole season) shows one bar of its own instead of the
// captions of its many steps: between BeginRun and EndRun the steps'
// progress is kept quiet, and the run's bar is drawn on a terminal once the
// run has lasted a second.
#pragma once

#include <chrono>
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

  void BeginRun(std::string caption);
  // `done` of `total` units, with a note of where the run stands.
  void RunProgress(int done, int total, std::string_view note);
  void EndRun();

 private:
  void EndLine();
  void DrawBar(std::string_view caption, int percent, std::string_view note);

  bool terminal_;
  bool lineOpen_ = false;
  std::string caption_;
  bool inRun_ = false;
  std::string runCaption_;
  std::chrono::steady_clock::time_point runStart_;
};

}  // namespace courtmere::cli
