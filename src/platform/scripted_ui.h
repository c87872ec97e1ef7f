// A Ui that answers from a script and records what it was shown.
//
// Used by tests and by the command-line tool. Questions take the next queued
// answer (Yes when the queue is empty); file dialogs take the next queued
// path (cancel when empty). With an echo stream, messages and progress
// captions are also printed as they come.
#pragma once

#include <deque>
#include <ostream>
#include <string>
#include <vector>

#include "platform/ui.h"

namespace courtmere {

class ScriptedUi : public Ui {
 public:
  explicit ScriptedUi(std::ostream* echo = nullptr) : echo_(echo) {}

  void QueueAnswer(bool yes) { answers_.push_back(yes); }
  void QueueFile(std::filesystem::path path) { files_.push_back(std::move(path)); }

  void Message(std::string_view text) override;
  bool Ask(std::string_view question) override;
  void ShowProgress(std::string_view caption) override;
  void SetProgress(int percent) override { progress_ = percent; }
  void HideProgress() override { progressShown_ = false; }
  std::optional<std::filesystem::path> OpenFile(std::string_view title,
                                                const std::filesystem::path& folder,
                                                std::string_view filter) override;
  std::optional<std::filesystem::path> SaveFile(std::string_view title,
                                                const std::filesystem::path& folder,
                                                std::string_view filter) override;
  void Pump() override {}

  const std::vector<std::string>& Messages() const { return messages_; }
  const std::vector<std::string>& Questions() const { return questions_; }
  const std::vector<std::string>& Captions() const { return captions_; }
  const std::vector<std::string>& DialogTitles() const { return dialogTitles_; }
  int Progress() const { return progress_; }
  bool ProgressShown() const { return progressShown_; }

 private:
  std::optional<std::filesystem::path> NextFile(std::string_view title);

  std::ostream* echo_;
  std::deque<bool> answers_;
  std::deque<std::filesystem::path> files_;
  std::vector<std::string> messages_;
  std::vector<std::string> questions_;
  std::vector<std::string> captions_;
  std::vector<std::string> dialogTitles_;
  int progress_ = 0;
  bool progressShown_ = false;
};

}  // namespace courtmere
