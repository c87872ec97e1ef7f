// What every screen of the main window has: the session it shows, the host
// that opens other screens and runs flows, and a Refresh that reads the store
// again after a flow has changed it.
#pragma once

#include <QString>
#include <QWidget>

class QPushButton;
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class Screen;

// The main window's services to its screens.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;
  virtual void OpenPlayerCard(int playerId) = 0;
  // The school's page (Team Info), from its name wherever it is shown.
  virtual void OpenTeam(const std::string& school) = 0;
  virtual void OpenBoxScore(const std::filesystem::path& file) = 0;
  virtual void OpenTextFile(const std::filesystem::path& file) = 0;
  // Shows another screen (the host takes it), as a screen's button asks.
  virtual void OpenScreen(Screen* screen) = 0;
  // Runs a flow that may change the store (the menus closed meanwhile), then
  // brings the menus and every open screen in line with the store.
  virtual void RunFlow(const std::function<void()>& flow) = 0;
  // The store was changed by a screen's own operation: the menus and every
  // open screen are brought in line with it.
  virtual void StoreChanged() = 0;
};

class Screen : public QWidget {
  Q_OBJECT

 public:
  Screen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  // The window's caption.
  virtual QString Caption() const = 0;
  // Tells apart two open screens of one class (two player cards); a screen
  // asked for again while one with its key is open is brought forward.
  virtual QString Key() const { return metaObject()->className(); }
  // Reads the store again.
  virtual void Refresh() {}
  // A screen of the set-up of a new dynasty: while one is open the intro
  // screen stands aside.
  virtual bool SetsUpDynasty() const { return false; }

 protected:
  // Closes the screen's window (its Close button).
  void CloseWindow();
  // A button with its object name, its click wired to `clicked`.
  QPushButton* AddButton(const char* name, const QString& text, std::function<void()> clicked);

  Session& session_;
  ScreenHost& host_;
};

QString ToQString(std::string_view text);
std::string ToStdString(const QString& text);

}  // namespace courtmere::app
