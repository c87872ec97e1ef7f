#include "app/text_viewer.h"

#include <QFile>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace courtmere::app {

TextViewer::TextViewer(Session& session, ScreenHost& host, std::filesystem::path file,
                       QWidget* parent)
    : Screen(session, host, parent), file_(std::move(file)), text_(new QPlainTextEdit(this)) {
  setObjectName("frmTextViewer");
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_);
  resize(720, 520);
  Refresh();
}

QString TextViewer::Caption() const {
  return ToQString(file_.filename().string());
}

QString TextViewer::Key() const {
  return "TextViewer:" + ToQString(file_.string());
}

void TextViewer::Refresh() {
  QFile file(ToQString(file_.string()));
  if (!file.open(QIODevice::ReadOnly)) {
    text_->setPlainText("The file " + ToQString(file_.string()) + " can't be read.");
    return;
  }
  text_->setPlainText(QString::fromUtf8(file.readAll()));
}

QString TextViewer::Text() const {
  return text_->toPlainText();
}

}  // namespace courtmere::app
