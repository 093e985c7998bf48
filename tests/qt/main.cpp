#include <QApplication>
#include <QFont>
#include <QTest>

#include <orvanta/platform/Platform.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "Support.h"
#include "tests/support/TestApplication.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const orvanta::test::ScratchFolder caches;
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = DEMO_BUNDLE;
  options.cachesPath = caches.path();
  options.deviceLanguages = {{"en"}};
  orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform(options));
  orvanta::platform::Platform::current().mainQueue->dispatchAsync(
      [] { orvanta::test::earlyStepRan = true; });

  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
  int failures = 0;
  for (const auto& make : {orvanta::test::makePlatformTest, orvanta::test::makeWidgetsTest,
                           orvanta::test::makeRepaintTest, orvanta::test::makeOrderWindowTest}) {
    failures += QTest::qExec(make().get(), QStringList(QString::fromLocal8Bit(argv[0])));
  }
  return failures == 0 ? 0 : 1;
}
