// frmIntro: the first screen, over the empty main window until a dynasty is
// loaded or made: New Season, Load, Options, Help and Exit.
#pragma once

#include <QWidget>
#include <functional>

class QPushButton;

namespace courtmere::app {

class IntroScreen : public QWidget {
  Q_OBJECT

 public:
  // `run` runs a menu command by its entry's name; `available` tells whether
  // the command exists yet (New Season waits for the new-dynasty flow).
  IntroScreen(std::function<void(const char*)> run, std::function<bool(const char*)> available,
              QWidget* parent = nullptr);

  // Enables each label whose command is available.
  void UpdateLabels();

 private:
  struct Label {
    QPushButton* button;
    const char* command;
  };
  QPushButton* AddLabel(const char* name, const QString& text, const char* command);

  std::function<void(const char*)> run_;
  std::function<bool(const char*)> available_;
  std::vector<Label> labels_;
};

}  // namespace courtmere::app
