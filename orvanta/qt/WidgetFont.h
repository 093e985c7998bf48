#pragma once

#include <QEvent>
#include <QFont>
#include <memory>

#include <orvanta/platform/Font.h>

class QStyle;
class QWidget;

namespace orvanta::qt {

/// The font of one widget as a localized control sees it.
///
///     base      what the widget has by its designer, its parents and style sheets
///     override  what the library shows in its place, in a language with a font of its own
///
/// Without an override the widget is left alone, so that the base changes as in any Qt application.
/// An override replaces what the library decides, family, weight and slant; the size follows the
/// base unless the override has another one. A change of the base under an override is applied to
/// both. A font that the application sets, under an override too, is the designed one from then on;
/// only under an override in a widget with a style sheet it is lost.
class WidgetFont {
 public:
  using FontPointer = std::shared_ptr<const platform::Font>;

  /// `widget` must outlive this.
  explicit WidgetFont(QWidget& widget);
  WidgetFont(const WidgetFont&) = delete;
  WidgetFont& operator=(const WidgetFont&) = delete;
  ~WidgetFont();

  /// The override, else the base: a handle that answers with what the base is at the time.
  [[nodiscard]] FontPointer font() const;
  /// The handle of the base takes the override away; any other font is an override.
  void setFont(const FontPointer& font);

  /// To be called before the widget handles an event, and after.
  void beforeEvent(QEvent::Type type);
  void afterEvent(QEvent::Type type);

 private:
  class Base;

  void takeDesign();
  void showDesign();
  void showOverride();
  void baseChanged();
  void takeFontOfApplication();
  [[nodiscard]] QFont overriddenDesign() const;

  QWidget& widget_;
  const std::shared_ptr<Base> base_;
  FontPointer override_;
  // Whether this is changing the widget's font, which sends events.
  bool isChanging_ = false;

  // What follows has a meaning while there is an override.
  QFont design_;     // what was set on the widget itself, without its style sheet
  QFont requested_;  // what the widget was given
  QFont shown_;      // what the widget made of it
  const QStyle* style_ = nullptr;
  bool sheetNamesFont_ = false;
  bool hasSizeOfBase_ = false;
};

}  // namespace orvanta::qt
