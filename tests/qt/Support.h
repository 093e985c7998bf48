#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "tests/support/TestApplication.h"

namespace orvanta::test {

/// Installs a platform that speaks English from the demo's bundle. Its caches end with the object.
class DemoPlatform {
 public:
  DemoPlatform() {
    platform::Platform::install(qt::makeQtPlatform({.mainBundlePath = DEMO_BUNDLE,
                                                    .cachesPath = caches_.path(),
                                                    .deviceLanguages = {{"en"}}}));
  }

 private:
  ScratchFolder caches_;
};

/// The test classes of this program; each registers itself with a static `Registration`.
inline std::vector<std::function<std::unique_ptr<QObject>()>>& testClasses() {
  static std::vector<std::function<std::unique_ptr<QObject>()>> classes;
  return classes;
}
template <typename Test>
struct Registration {
  Registration() { testClasses().emplace_back(std::make_unique<Test>); }
};

/// Whether the step ran that was queued before the application object was made.
inline bool earlyStepRan = false;

/// Changes the language and waits until observers were notified. False when they were not in time.
[[nodiscard]] inline bool speak(const QString& language) {
  bool heard = false;
  const qt::LanguageChangeObserver observer([&heard] { heard = true; });
  Localizer::sharedLocalizer().updatePreferredLocales({qt::fromQString(language)}, {});
  QElapsedTimer timer;
  for (timer.start(); !heard && timer.elapsed() < 5000;) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  QCoreApplication::processEvents();
  return heard;
}

/// The number of columns without black pixels left and right of a widget's text.
struct Blank {
  int left = 0;
  int right = 0;
};

[[nodiscard]] inline Blank blankBesideInk(QWidget& widget, const QRect& within) {
  QImage image(widget.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  widget.render(&image);
  int first = within.right();
  int last = within.left();
  for (int y = within.top(); y <= within.bottom(); ++y) {
    for (int x = within.left(); x <= within.right(); ++x) {
      if (qGray(image.pixel(x, y)) < 100) {
        first = std::min(first, x);
        last = std::max(last, x);
      }
    }
  }
  return {first - within.left(), within.right() - last};
}

/// The side of a widget's text: "left", "right" or "middle".
[[nodiscard]] inline QString inkSide(QWidget& widget) {
  const Blank blank = blankBesideInk(widget, widget.rect().adjusted(4, 4, -4, -4));
  if (std::abs(blank.left - blank.right) < 12) {
    return QStringLiteral("middle");
  }
  return blank.left < blank.right ? QStringLiteral("left") : QStringLiteral("right");
}

}  // namespace orvanta::test
