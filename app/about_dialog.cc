#include "app/about_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace courtmere::app {

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle("About Courtmere");
  auto* text = new QLabel(this);
  text->setTextFormat(Qt::RichText);
  text->setWordWrap(true);
  text->setText(
      "<h2>Courtmere</h2>"
      "<p>A college-basketball head-coach simulation.</p>"
      "<p>Take the head-coach job at one school and run its program season after season: "
      "recruit, set lineups and tactics, hire your staff, play your games or coach them "
      "live, and chase the conference title and the two national tournaments while the "
      "board watches your record.</p>"
      "<p>Built with Qt, SQLite and libsodium.</p>");
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addWidget(buttons);
  setFixedWidth(420);
}

}  // namespace courtmere::app
