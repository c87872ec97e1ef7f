// courtmere: the desktop program.
#include <QApplication>
#include <QMessageBox>

#include "app/main_window.h"
#include "app/qt_ui.h"
#include "store/session.h"
#include "store/store_files.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Courtmere");
  courtmere::app::QtUi ui;
  // The session holds the season's figures (a megabyte): it lives on the heap.
  auto session = std::make_unique<courtmere::Session>(
      courtmere::ProgramFolder(courtmere::ProgramFolder::DefaultRoot()), courtmere::Rng(), ui);
  try {
    courtmere::StartUp(*session);
  } catch (const std::exception& e) {
    QMessageBox::critical(nullptr, "Courtmere",
                          QString("Courtmere can't open its store: %1").arg(e.what()));
    return 1;
  }
  courtmere::app::MainWindow window(*session);
  ui.SetWindow(&window);
  window.show();
  return QApplication::exec();
}
