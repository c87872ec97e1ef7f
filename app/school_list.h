// The list of the dynasty's schools that the team screens choose from.
#pragma once

#include <string>

class QComboBox;
class QWidget;

namespace courtmere {
class Store;
}

namespace courtmere::app {

// Every Team of the dynasty in alphabetical order, `selected` chosen.
QComboBox* SchoolList(Store& store, const std::string& selected, QWidget* parent);

}  // namespace courtmere::app
