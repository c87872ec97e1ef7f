#include "app/school_list.h"

#include <QComboBox>

#include "app/screen.h"
#include "store/store.h"

namespace courtmere::app {

QComboBox* SchoolList(Store& store, const std::string& selected, QWidget* parent) {
  auto* list = new QComboBox(parent);
  list->setObjectName("cmbTeam");
  for (Rows r = store.Query("SELECT SchoolName FROM Team ORDER BY SchoolName"); r.Next();) {
    list->addItem(ToQString(r.TextView(0)));
  }
  const int at = list->findText(ToQString(selected));
  if (at >= 0) list->setCurrentIndex(at);
  return list;
}

}  // namespace courtmere::app
