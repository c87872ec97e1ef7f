// What the window tests read from open screens: the first screen of a class,
// the texts of a grid's column, and the main window as the tests show it.
#pragma once

#include <QStringList>
#include <memory>

#include "app/grid_model.h"
#include "app/main_window.h"

namespace courtmere::testing {

// The first open screen of a class.
template <class T>
T* Find(app::MainWindow& window) {
  for (app::Screen* screen : window.Screens()) {
    if (auto* found = qobject_cast<T*>(screen)) return found;
  }
  return nullptr;
}

inline QStringList Column(app::GridView* grid, int column) {
  QStringList cells;
  for (int row = 0; row < grid->Model()->rowCount(); ++row) {
    cells << grid->Model()->Cell(row, column).text;
  }
  return cells;
}

// The main window on a session at the tests' size, shown and gated.
inline std::unique_ptr<app::MainWindow> ShowMainWindow(Session& session) {
  auto window = std::make_unique<app::MainWindow>(session);
  window->resize(1300, 900);
  window->show();
  window->RunGate();
  return window;
}

}  // namespace courtmere::testing
