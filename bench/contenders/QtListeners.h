#pragma once

#include <QObject>
#include <QTranslator>
#include <memory>
#include <string>
#include <vector>

namespace orvanta::bench::qt {

/// Signals a change of language.
class Announcer : public QObject {
  Q_OBJECT

 public:
  void announce() { emit languageChanged(); }

 signals:
  void languageChanged();
};

/// Shows one text in the current language.
class Listener : public QObject {
  Q_OBJECT

 public:
  /// What `current` points at, and `key`, must outlive this.
  Listener(const QTranslator* const& current, const char* key) : current_(current), key_(key) {}

  [[nodiscard]] const QString& text() const noexcept { return text_; }

  void refresh();

 private:
  const QTranslator* const& current_;
  const char* key_;
  QString text_;
};

}  // namespace orvanta::bench::qt
