#include "app/help_screen.h"

#include <QTextBrowser>
#include <QVBoxLayout>

// The help text is a resource of the static library; a static library's
// resources are registered by hand.
static void RegisterHelpText() {
  Q_INIT_RESOURCE(courtmere);
}

namespace courtmere::app {

HelpScreen::HelpScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent) {
  RegisterHelpText();
  setObjectName("frmHelp");
  auto* text = new QTextBrowser(this);
  text->setSource(QUrl("qrc:/resources/help.html"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text);
  resize(640, 560);
}

}  // namespace courtmere::app
