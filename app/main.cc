// courtmere: the desktop program.
#include <QApplication>
#include <QMessageBox>
#include <cstring>
#include <iostream>

#include "app/main_window.h"
#include "app/qt_ui.h"
#include "app/screenshot_tour.h"
#include "store/session.h"
#include "store/store_files.h"

namespace {

// The folder of the hidden option "--screenshots DIR"; null without it.
const char* ScreenshotFolder(int argc, char** argv) {
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::strcmp(argv[i], "--screenshots") == 0) return argv[i + 1];
  }
  return nullptr;
}

int RunTour(int argc, char** argv, const char* folder) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName("Courtmere");
  const int shots = courtmere::app::RunScreenshotTour(folder);
  std::cout << shots << " screenshots saved in " << folder << "\n";
  return shots > 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (const char* folder = ScreenshotFolder(argc, argv)) return RunTour(argc, argv, folder);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Courtmere");
  courtmere::app::QtUi ui;
  // The session holds the season's figures (a megabyte): it lives on the heap.
  auto session = std::make_unique<courtmere::Session>(
      courtmere::ProgramFolder(courtmere::ProgramFolder::DefaultRoot()), courtmere::Rng(), ui);
  try {
    courtmere::StartUp(*session);
  } catch (const courtmere::FolderBusy& busy) {
    // Another Courtmere (a window or the command-line tool) has the folder:
    // this one goes away without touching it.
    QMessageBox::critical(nullptr, "Courtmere", busy.what());
    return 2;
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
