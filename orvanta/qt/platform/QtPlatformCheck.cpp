#include <QDebug>
#include <atomic>

#include <orvanta/qt/platform/QtPlatformCheck.h>

namespace orvanta::qt {

namespace {

// Set, too, once the warning was printed.
std::atomic<bool> isSettled = false;

}  // namespace

void noteQtPlatform() {
  isSettled = true;
}

void warnWithoutQtPlatform() {
  if (!isSettled.exchange(true)) {
    qWarning(
        "Localized widgets will not follow the language: call "
        "orvanta::platform::Platform::install(orvanta::qt::makeQtPlatform()) first.");
  }
}

}  // namespace orvanta::qt
