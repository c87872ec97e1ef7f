#include "app/screen.h"

namespace courtmere::app {

Screen::Screen(Session& session, ScreenHost& host, QWidget* parent)
    : QWidget(parent), session_(session), host_(host) {}

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string ToStdString(const QString& text) {
  return text.toStdString();
}

}  // namespace courtmere::app
