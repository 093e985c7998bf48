#pragma once

#include <QCoreApplication>
#include <QEvent>

namespace orvanta::qt {

/// Posts Qt's `LanguageChange` to the application, which hands it to its windows. Posted several
/// times before the event loop runs, it arrives once. Nothing happens without an application.
inline void postLanguageChange() {
  if (QCoreApplication* const application = QCoreApplication::instance()) {
    QCoreApplication::postEvent(application, new QEvent(QEvent::LanguageChange));
  }
}

}  // namespace orvanta::qt
