#pragma once

#include <QObject>

class RepaintTest : public QObject {
  Q_OBJECT

 private slots:
  static void init();
  static void aBatchPaintsEveryLabelOnce_data();
  static void aBatchPaintsEveryLabelOnce();
  static void measuresPlainTextAsQtDoes_data();
  static void measuresPlainTextAsQtDoes();
};
