#include <QtTest>
class Placeholder : public QObject {
  Q_OBJECT
};
QTEST_MAIN(Placeholder)
#include "saved_games_test.moc"
