#pragma once

#include <QObject>

class PlatformTest : public QObject {
  Q_OBJECT

 private slots:
  static void runsWhatWasQueuedBeforeTheApplication();
  static void runsAtOnceOnItsOwnThreadAndCarriesFromOthers();
  static void hasTwoArabicFacesThatLookDifferent();
  static void knowsFontsByExactNameAlone();
  static void keepsTheSizeOfFontsInPixels();
};
