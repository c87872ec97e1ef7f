// The home screen of the user's school, standing in the main window whenever
// no other screen is open: where the school stands, with its poll and
// rating-index ranks drawn week by week, the next game and the last results,
// the week's recruiting period, the inbox's newest letters, and what to do
// next, each task a link to the screen that does it.
#pragma once

#include <QStringList>
#include <functional>

#include "app/screen.h"
#include "screens/home.h"

class QChartView;
class QFormLayout;
class QLabel;
class QVBoxLayout;

namespace courtmere::app {

class HomeScreen : public Screen {
  Q_OBJECT

 public:
  // `run` runs a menu entry's command; `usable` tells whether the entry can
  // be used now (it has a command and the gate opens it).
  // `period` gives the recruiting period in force, as the recruiting screens
  // see it.
  HomeScreen(Session& session, ScreenHost& host, std::function<void(const char*)> run,
             std::function<bool(const char*)> usable, std::function<RecruitingPeriod()> period,
             QWidget* parent = nullptr);

  QString Caption() const override { return "Home"; }
  QString Key() const override { return "frmHome"; }
  void Refresh() override;

  // The entries of the to-do items shown, in order, and their texts.
  const QStringList& TodoEntries() const { return todoEntries_; }
  QStringList TodoTexts() const;
  // A click on a to-do item's link.
  void Follow(const QString& entry);
  // The texts shown beside each heading of the standing panel ("Record").
  QString Value(const QString& label) const;
  int ChartPoints() const;

 private:
  QWidget* Panel(const QString& title, QLayout* content);
  void ShowStanding();
  void ShowChart();
  void ShowGames();
  void ShowLetters();
  void ShowTodo();
  void OpenLink(const QString& link);

  std::function<void(const char*)> run_;
  std::function<bool(const char*)> usable_;
  std::function<RecruitingPeriod()> period_;
  Home home_;
  QLabel* title_;
  QLabel* calendar_;
  QFormLayout* standing_;
  QChartView* chart_;
  QVBoxLayout* games_;
  QVBoxLayout* letters_;
  QVBoxLayout* todo_;
  QStringList todoEntries_;
  QList<QLabel*> todoLabels_;
};

}  // namespace courtmere::app
