// A player's career on his card: his lines year by year and a chart of his
// Overall and key ratings by year (each as he ended the season).
#pragma once

#include <QWidget>

class QChartView;

namespace courtmere {
class Store;
}

namespace courtmere::app {

class GridView;

class PlayerCareerView : public QWidget {
  Q_OBJECT

 public:
  PlayerCareerView(Store& store, int playerId, QWidget* parent = nullptr);

  void Refresh();

  GridView* Years() const { return years_; }
  // The points the chart draws, of every line.
  int ChartPoints() const;

 private:
  Store& store_;
  int playerId_;
  GridView* years_;
  QChartView* chart_;
};

}  // namespace courtmere::app
