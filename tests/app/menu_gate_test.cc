#include <QtTest>
class Placeholder : public QObject {
  Q_OBJECT
};
QTEST_MAIN(Placeholder)
#include "menu_gate_test.moc"
