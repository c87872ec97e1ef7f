#include "cli_ui.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>

namespace courtmere::cli {

namespace {

constexpr int kBarWidth = 30;

}  // namespace

CliUi::CliUi() : terminal_(isatty(STDERR_FILENO) != 0) {}

void CliUi::EndLine() {
  if (lineOpen_) std::fputc('\n', stderr);
  lineOpen_ = false;
}

void CliUi::Message(std::string_view text) {
  ScriptedUi::Message(text);
  EndLine();
  fmt::print("{}: {}\n", kProgramTitle, text);
  std::fflush(stdout);
}

bool CliUi::Ask(std::string_view question) {
  const bool yes = ScriptedUi::Ask(question);
  EndLine();
  fmt::print(stderr, "{}: {} {}\n", kProgramTitle, question, yes ? "Yes" : "No");
  return yes;
}

void CliUi::ShowProgress(std::string_view caption) {
  ScriptedUi::ShowProgress(caption);
  EndLine();
  caption_ = caption;
  fmt::print(stderr, "{}", caption_);
  lineOpen_ = true;
}

void CliUi::SetProgress(int percent) {
  ScriptedUi::SetProgress(percent);
  if (!terminal_ || !lineOpen_) return;
  const int filled = percent * kBarWidth / 100;
  fmt::print(stderr, "\r{:<28} [{:#<{}}{:<{}}] {:3}%", caption_, "", filled, "", kBarWidth - filled,
             percent);
}

void CliUi::HideProgress() {
  ScriptedUi::HideProgress();
  EndLine();
}

}  // namespace courtmere::cli
