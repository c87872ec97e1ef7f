#include "app/scope.h"

#include <QComboBox>

#include "app/screen.h"
#include "screens/game_log.h"
#include "store/session.h"

namespace courtmere::app {

QComboBox* ConferenceList(Session& session, QWidget* parent) {
  auto* list = new QComboBox(parent);
  list->setObjectName("cmbConference");
  for (const std::string& name : GameLogConferences(session.Db())) {
    list->addItem(ToQString(name));
  }
  list->setCurrentText(ToQString(session.humanConference));
  return list;
}

QString ScopedKey(const char* screen, Scope scope) {
  return QString("%1%2").arg(screen).arg(static_cast<int>(scope));
}

}  // namespace courtmere::app
