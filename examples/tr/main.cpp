#include <QApplication>

#include <orvanta/orvanta.h>
#include <orvanta/qt/Translator.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "Window.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = ":/app";  // the tables are inside the program
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform(options));
  orvanta::qt::Translator translator;
  QCoreApplication::installTranslator(&translator);

  Window window;
  window.show();
  return QApplication::exec();
}
