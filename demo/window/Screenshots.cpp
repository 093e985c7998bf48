#include "Screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>
#include <algorithm>

#include <orvanta/orvanta.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/Text.h>

#include "OrderWindow.h"

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

QImage summariesIn(const QString& language, OrderWindow& window) {
  changeLanguage({orvanta::qt::fromQString(language)});
  auto* const summary = window.findChild<QWidget*>(QStringLiteral("summaryLabel"));
  QList<QImage> images;
  QSize size;
  for (const int count : {0, 1, 2, 3, 11, 100}) {
    window.setItemCount(count);
    QCoreApplication::processEvents();
    QImage image(summary->size() * kScale, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(kScale);
    summary->render(&image);
    size = QSize(std::max(size.width(), image.width()), size.height() + image.height());
    images << image;
  }
  QImage all(size, QImage::Format_RGB32);
  all.fill(Qt::white);
  QPainter painter(&all);
  int top = 0;
  for (QImage& image : images) {
    image.setDevicePixelRatio(1);
    painter.drawImage(QPoint(0, top), image);
    top += image.height();
  }
  return all;
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
