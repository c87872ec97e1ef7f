#include "app/intro_screen.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace courtmere::app {

IntroScreen::IntroScreen(std::function<void(const char*)> run,
                         std::function<bool(const char*)> available, QWidget* parent)
    : QWidget(parent), run_(std::move(run)), available_(std::move(available)) {
  setObjectName("frmIntro");
  setWindowTitle("Courtmere");
  setAttribute(Qt::WA_StyledBackground);
  setStyleSheet(
      "#frmIntro { background: rgba(10, 40, 25, 215); border: 2px solid #d8d2b8; "
      "border-radius: 10px; }"
      "QLabel { color: #f4f1e4; }"
      "QPushButton { color: #f4f1e4; background: transparent; border: none; font-size: 17pt; "
      "padding: 6px; }"
      "QPushButton:hover { color: #ffd35c; }"
      "QPushButton:disabled { color: #7d8a80; }");
  auto* title = new QLabel("Courtmere", this);
  title->setAlignment(Qt::AlignCenter);
  title->setStyleSheet("font-size: 30pt; font-weight: bold;");
  auto* subtitle = new QLabel("College basketball, season after season", this);
  subtitle->setAlignment(Qt::AlignCenter);
  subtitle->setStyleSheet("font-size: 11pt; font-style: italic;");

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(36, 28, 36, 28);
  layout->addWidget(title);
  layout->addWidget(subtitle);
  layout->addSpacing(18);
  layout->addWidget(AddLabel("lblNewSeason", "New Season", "mnuFileNew"));
  layout->addWidget(AddLabel("lblLoad", "Load", "mnuFileLoad"));
  layout->addWidget(AddLabel("lblOptions", "Options", "mnuFileSetup"));
  layout->addWidget(AddLabel("lblHelp", "Help", "mnuHelpContents"));
  layout->addWidget(AddLabel("lblExit", "Exit", "mnuFileQuit"));
  UpdateLabels();
}

QPushButton* IntroScreen::AddLabel(const char* name, const QString& text, const char* command) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setCursor(Qt::PointingHandCursor);
  button->setFocusPolicy(Qt::NoFocus);
  // Queued: the command may close this screen (a load does), which must not
  // happen while its button is still reporting the click.
  connect(button, &QPushButton::clicked, this, [run = run_, command] {
    QMetaObject::invokeMethod(
        qApp, [run, command] { run(command); }, Qt::QueuedConnection);
  });
  labels_.push_back({button, command});
  return button;
}

void IntroScreen::UpdateLabels() {
  for (const Label& label : labels_) label.button->setEnabled(available_(label.command));
}

}  // namespace courtmere::app
