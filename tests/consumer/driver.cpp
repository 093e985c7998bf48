// Added to the programs of examples/: runs each in English and in Arabic, prints what a screen
// reader finds in the window, and leaves a picture of each language in $SCREENSHOTS.
#include <QAccessible>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <iostream>

#include <orvanta/orvanta.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace {

void printNames(const QAccessibleInterface* element) {
  if (element == nullptr) {
    return;
  }
  for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description}) {
    const QString text = element->text(kind);
    std::cout << (text.isEmpty() ? "" : "|") << text.toStdString();
  }
  for (int at = 0; at < element->childCount(); ++at) {
    printNames(element->child(at));
  }
}

void speak(const char* language) {
  bool heard = false;
  const orvanta::qt::LanguageChangeObserver observer([&heard] { heard = true; });
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({language}, {});
  while (!heard) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  // Layouts, retranslations and frames follow in turns of their own.
  QEventLoop turns;
  QTimer::singleShot(300, &turns, &QEventLoop::quit);
  turns.exec();
}

void drive() {
  QWindow* const window = QGuiApplication::topLevelWindows().value(0);
  for (const char* language : {"ar", "en", "ar"}) {
    speak(language);
    const QPixmap picture = window->screen()->grabWindow(window->winId());
    picture.save(qEnvironmentVariable("SCREENSHOTS") + QLatin1String(language) + ".png");
    std::cout << language
              << (QGuiApplication::layoutDirection() == Qt::RightToLeft ? " mirrored" : "");
    // Below the application itself, whose name is its path.
    printNames(QAccessible::queryAccessibleInterface(qApp)->child(0));
    std::cout << '\n';
  }
  QCoreApplication::quit();
}

void start() {
  QTimer::singleShot(0, drive);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(start)
