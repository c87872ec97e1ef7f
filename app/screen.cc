#include "app/screen.h"

#include <QMdiSubWindow>
#include <QPushButton>

namespace courtmere::app {

Screen::Screen(Session& session, ScreenHost& host, QWidget* parent)
    : QWidget(parent), session_(session), host_(host) {}

void Screen::CloseWindow() {
  // The window is deleted once the click that asked for it is over.
  if (auto* window = qobject_cast<QMdiSubWindow*>(parentWidget())) window->close();
}

QPushButton* Screen::AddButton(const char* name, const QString& text,
                               std::function<void()> clicked) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, [clicked = std::move(clicked)] { clicked(); });
  return button;
}

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string ToStdString(const QString& text) {
  return text.toStdString();
}

}  // namespace courtmere::app
