// Pictures of the screens for a person to look at: with the environment
// variable COURTMERE_SCREENSHOTS naming a folder, each call saves the widget
// as <folder>/<name>.png; without it, nothing happens.
#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

namespace courtmere::testing {

inline void Screenshot(QWidget* widget, const QString& name) {
  const QString folder = qEnvironmentVariable("COURTMERE_SCREENSHOTS");
  if (folder.isEmpty()) return;
  QDir().mkpath(folder);
  widget->grab().save(folder + "/" + name + ".png");
}

}  // namespace courtmere::testing
