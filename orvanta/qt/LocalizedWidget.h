#pragma once

#include <QEvent>
#include <QString>

#include <orvanta/controls/LocalizedControl.h>
#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// What the three localized widgets have in common.
class ORVANTA_QT_EXPORT LocalizedWidget {
 public:
  LocalizedWidget(const LocalizedWidget&) = delete;
  LocalizedWidget& operator=(const LocalizedWidget&) = delete;
  virtual ~LocalizedWidget();

  /// Takes the designed state, text and all, and localizes the widget from now on. Later calls
  /// refresh it, which shows the translation again where somebody has set another text.
  void awakeFromNib();

  /// The key of the text; null where there is none.
  [[nodiscard]] QString key() const;
  /// Shows the text of `key` now and after every change of language, whether it is translated or
  /// not. What the application sets as the text stays until then. With a null or an empty key the
  /// text is left to the application, and font and sides alone go on following the language.
  /// Awakens the widget.
  void setKey(const QString& key);

 protected:
  LocalizedWidget();

  /// The rules and the remembered state of the widget.
  [[nodiscard]] virtual LocalizedControl& control() const = 0;
  /// Takes the designed state and localizes the widget; called once.
  virtual void awake() = 0;
  /// For a widget that localizes itself without a layout.
  void setAwake();
  /// To be called after the widget has handled an event: form code that is generated sets the keys
  /// as texts again when Qt's translators have changed.
  void afterEvent(QEvent::Type type);

 private:
  void refresh() const;

  bool awake_ = false;
};

}  // namespace orvanta::qt
