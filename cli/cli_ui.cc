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
  fmt::print(stderr, "{}: {}\n", kProgramTitle, text);
}

bool CliUi::Ask(std::string_view question) {
  const bool yes = ScriptedUi::Ask(question);
  EndLine();
  fmt::print(stderr, "{}: {} {}\n", kProgramTitle, question, yes ? "Yes" : "No");
  return yes;
}

void CliUi::ShowProgress(std::string_view caption) {
  ScriptedUi::ShowProgress(caption);
  if (inRun_) return;
  EndLine();
  caption_ = caption;
  fmt::print(stderr, "{}", caption_);
  lineOpen_ = true;
}

void CliUi::SetProgress(int percent) {
  ScriptedUi::SetProgress(percent);
  if (inRun_ || !terminal_ || !lineOpen_) return;
  DrawBar(caption_, percent, "");
}

void CliUi::HideProgress() {
  ScriptedUi::HideProgress();
  if (!inRun_) EndLine();
}

void CliUi::DrawBar(std::string_view caption, int percent, std::string_view note) {
  const int filled = percent * kBarWidth / 100;
  fmt::print(stderr, "\r{:<28} [{:#<{}}{:<{}}] {:3}% {:<20}", caption, "", filled, "",
             kBarWidth - filled, percent, note);
  lineOpen_ = true;
}

void CliUi::BeginRun(std::string caption) {
  EndLine();
  inRun_ = true;
  runCaption_ = std::move(caption);
  runStart_ = std::chrono::steady_clock::now();
}

void CliUi::RunProgress(int done, int total, std::string_view note) {
  if (!terminal_ || std::chrono::steady_clock::now() - runStart_ < std::chrono::seconds(1)) return;
  DrawBar(runCaption_, total > 0 ? done * 100 / total : 100, note);
  std::fflush(stderr);
}

void CliUi::EndRun() {
  inRun_ = false;
  EndLine();
}

}  // namespace courtmere::cli
