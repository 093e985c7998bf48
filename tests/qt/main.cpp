#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QTest>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/platform/QtFonts.h>

#include "Support.h"

namespace {

// Whether a new application object has the Arabic face. Destroys the application object.
bool applicationHasArabicFace(int& argc, char** argv) {
  const QApplication application(argc, argv);
  const auto face = orvanta::localizationUtilities::ArabicFontWithSize(20, true);
  return QFontInfo(orvanta::qt::toQFont(face)).family() ==
         QStringLiteral("CorbetSansKufiArabic-Bold");
}

bool warnsOnce(int& argc, char** argv) {
  static int warnings = 0;
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    warnings += text.contains(QLatin1String("makeQtPlatform")) ? 1 : 0;
  });
  const QApplication application(argc, argv);
  const std::unique_ptr<QWidget> first(orvanta::qt::UILocalizedLabel::initLocalizedWithFrame({}));
  const std::unique_ptr<QWidget> second(orvanta::qt::UILocalizedLabel::initLocalizedWithFrame({}));
  return warnings == 1;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QByteArray task = argc > 1 ? argv[1] : "";
  if (task == "--no-platform") {
    return warnsOnce(argc, argv) ? 0 : 1;
  }
  const orvanta::test::DemoPlatform platform;
  if (task == "--two-applications") {
    const bool inTheFirst = applicationHasArabicFace(argc, argv);
    return inTheFirst && applicationHasArabicFace(argc, argv) ? 0 : 1;
  }
  orvanta::platform::Platform::current().mainQueue->dispatchAsync(
      [] { orvanta::test::earlyStepRan = true; });

  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
  int failures = 0;
  for (const auto& make : orvanta::test::testClasses()) {
    failures += QTest::qExec(make().get(), QStringList(QString::fromLocal8Bit(argv[0])));
  }
  return failures == 0 ? 0 : 1;
}
