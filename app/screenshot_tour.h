// The screenshot tour: the program drives itself through a new dynasty with
// a fixed seed in a program folder of its own, starts the season and opens
// every screen the menus offer, saving a picture of the main window at each
// step as DIR/NN_<screen>.png. Run by the hidden option --screenshots DIR
// (scripts/screenshots wraps it on Qt's offscreen platform).
#pragma once

#include <filesystem>

namespace courtmere::app {

// The number of pictures saved; 0 when the tour could not run.
int RunScreenshotTour(const std::filesystem::path& folder);

}  // namespace courtmere::app
