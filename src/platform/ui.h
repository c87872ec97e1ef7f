// The platform services a flow may ask of the user interface.
//
// Flows never talk to widgets. They call this interface: the desktop program
// implements it with real dialogs, tests and the command-line tool with
// ScriptedUi. Every message box is titled "Courtmere".
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace courtmere {

inline constexpr std::string_view kProgramTitle = "Courtmere";

class Ui {
 public:
  virtual ~Ui() = default;

  // A message box with an OK button.
  virtual void Message(std::string_view text) = 0;
  // A yes/no question; true on Yes. A No leaves all data unchanged.
  virtual bool Ask(std::string_view question) = 0;

  // The progress window (frmMessage): a caption and a bar from 0 to 100.
  virtual void ShowProgress(std::string_view caption) = 0;
  virtual void SetProgress(int percent) = 0;
  virtual void HideProgress() = 0;

  // File dialogs; an empty result means the user cancelled. `filter` is
  // written as "Description (*.EXT)|*.EXT".
  virtual std::optional<std::filesystem::path> OpenFile(std::string_view title,
                                                        const std::filesystem::path& folder,
                                                        std::string_view filter) = 0;
  virtual std::optional<std::filesystem::path> SaveFile(std::string_view title,
                                                        const std::filesystem::path& folder,
                                                        std::string_view filter) = 0;

  // Lets the window system handle its events during a long flow.
  virtual void Pump() = 0;
};

}  // namespace courtmere
