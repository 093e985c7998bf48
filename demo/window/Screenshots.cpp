#include "Screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>

#include <orvanta/orvanta.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/Text.h>

namespace demo {

namespace {

constexpr double kScale = 2;

// Changes the language and lets the event loop run until everybody has heard of it.
void changeLanguage(const orvanta::StringList& locales) {
  bool heard = false;
  const orvanta::qt::LanguageChangeObserver observer([&heard] { heard = true; });
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales(locales, {});
  while (!heard) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  // Layouts settle in a turn of their own.
  QCoreApplication::processEvents();
}

}  // namespace

QImage screenshotIn(const QString& language, QWidget& window) {
  changeLanguage({orvanta::qt::fromQString(language)});
  QImage image(window.size() * kScale, QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  window.render(&image);
  return image;
}

bool takeScreenshots(QWidget& window, const QString& folder, const QStringList& languages) {
  const orvanta::StringList before = orvanta::Localizer::sharedLocalizer().currentLocales();
  bool written = QDir().mkpath(folder);
  for (const QString& language : languages) {
    const QImage image = screenshotIn(language, window);
    written = written && image.save(folder + QLatin1Char('/') + language + QLatin1String(".png"));
  }
  changeLanguage(before);
  return written;
}

QImage sideBySide(QWidget& window, const QString& left, const QString& right) {
  const QImage first = screenshotIn(left, window);
  const QImage second = screenshotIn(right, window);
  constexpr int kGap = 24;
  const QSize size = window.size();
  QImage both(QSize(2 * size.width() + kGap, size.height()) * kScale, QImage::Format_ARGB32);
  both.setDevicePixelRatio(kScale);
  both.fill(Qt::transparent);
  QPainter painter(&both);
  painter.drawImage(QPoint(0, 0), first);
  painter.drawImage(QPoint(size.width() + kGap, 0), second);
  return both;
}

}  // namespace demo
