#include "platform/scripted_ui.h"

namespace courtmere {

void ScriptedUi::Message(std::string_view text) {
  messages_.emplace_back(text);
  if (echo_ != nullptr) *echo_ << kProgramTitle << ": " << text << '\n';
}

bool ScriptedUi::Ask(std::string_view question) {
  questions_.emplace_back(question);
  bool yes = true;
  if (!answers_.empty()) {
    yes = answers_.front();
    answers_.pop_front();
  }
  if (echo_ != nullptr) *echo_ << kProgramTitle << ": " << question << (yes ? " Yes\n" : " No\n");
  return yes;
}

void ScriptedUi::ShowProgress(std::string_view caption) {
  captions_.emplace_back(caption);
  progressShown_ = true;
  progress_ = 0;
  if (echo_ != nullptr) *echo_ << caption << '\n';
}

std::optional<std::filesystem::path> ScriptedUi::NextFile(std::string_view title) {
  dialogTitles_.emplace_back(title);
  if (files_.empty()) return std::nullopt;
  std::filesystem::path path = std::move(files_.front());
  files_.pop_front();
  return path;
}

std::optional<std::filesystem::path> ScriptedUi::OpenFile(std::string_view title,
                                                          const std::filesystem::path&,
                                                          std::string_view) {
  return NextFile(title);
}

std::optional<std::filesystem::path> ScriptedUi::SaveFile(std::string_view title,
                                                          const std::filesystem::path&,
                                                          std::string_view) {
  return NextFile(title);
}

}  // namespace courtmere
