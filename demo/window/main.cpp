#include <QApplication>
#include <QCommandLineParser>
#include <iostream>

#include <orvanta/qt/platform/QtPlatform.h>

#include "Appearance.h"
#include "OrderWindow.h"
#include "Screenshots.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QCommandLineParser options;
  options.setApplicationDescription("A window that speaks the language chosen in it.");
  options.addHelpOption();
  options.addOptions({
      {"screenshots", "Leave a picture of the window in five languages in <folder>.", "folder"},
      {"picture", "Leave a picture of the window in English and Arabic in <file>.", "file"},
      {"summaries", "Leave pictures of the Arabic order in every plural form in <file>.", "file"},
      {"screenshots-only", "End instead of staying open."},
  });
  options.process(application);

  orvanta::standard::StandardOptions paths;
  paths.mainBundlePath = DEMO_BUNDLE;
  paths.cachesPath = DEMO_CACHES;
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform(paths));
  demo::applyAppearance(application);
  demo::OrderWindow window(QStringLiteral(DEMO_DOWNLOADS "/it.json"));
  window.show();

  const QString folder = options.value("screenshots");
  if (!folder.isEmpty()) {
    if (!demo::takeScreenshots(window, folder, {"en", "fr", "ar", "he", "zh-Hans"})) {
      std::cerr << "The screenshots cannot be written to " << folder.toStdString() << ".\n";
      return 1;
    }
    std::cout << "The window in five languages: " << folder.toStdString() << "/*.png\n";
  }
  const QString picture = options.value("picture");
  if (!picture.isEmpty() && !demo::sideBySide(window, "en", "ar").save(picture)) {
    std::cerr << "The picture cannot be written to " << picture.toStdString() << ".\n";
    return 1;
  }
  const QString summaries = options.value("summaries");
  if (!summaries.isEmpty() && !demo::summariesIn("ar", window).save(summaries)) {
    std::cerr << "The pictures cannot be written to " << summaries.toStdString() << ".\n";
    return 1;
  }
  return options.isSet("screenshots-only") ? 0 : QApplication::exec();
}
