#pragma once

#include <QObject>
#include <QStringList>

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// A signal for each change of language, for code that is built from signals and slots.
class ORVANTA_QT_EXPORT LanguageNotifier : public QObject {
  Q_OBJECT

 public:
  /// Notifies from now on.
  explicit LanguageNotifier(QObject* parent = nullptr);

  /// The current locales, the first one in front.
  [[nodiscard]] static QStringList locales();

 Q_SIGNALS:
  /// The language has changed. Emitted on the main thread.
  void changed();

 private:
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
