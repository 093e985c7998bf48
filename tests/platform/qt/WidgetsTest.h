#pragma once

#include <QObject>

class WidgetsTest : public QObject {
  Q_OBJECT

 private slots:
  static void init();
  static void drawsTextOnTheDesignedSide_data();
  static void drawsTextOnTheDesignedSide();
  static void naturalFollowsTheApplication();
  static void givesTheDesignedFontBack();
  static void loadsFormsThreeWays();
  static void labelsMadeInCodeAreAwake();
  static void buttonShowsTheTitleOfItsState();
  static void buttonFitsEveryTitle();
  static void ampersandsStandForThemselves();
  static void livesThroughSwitching();
};
