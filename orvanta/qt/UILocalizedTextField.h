#pragma once

#include <QLineEdit>
#include <memory>

#include <orvanta/controls/UILocalizedTextField.h>
#include <orvanta/qt/Export.h>
#include <orvanta/qt/LocalizedWidget.h>

namespace orvanta::qt {

class TextFieldAdapter;

/// A QLineEdit that localizes itself: the text typed into it in a layout is a key, and its
/// accessible name and description are keys too. Without a text it changes font and alignment
/// alone.
///
/// Nothing happens before `awakeFromNib`, which form loaders call.
class ORVANTA_QT_EXPORT UILocalizedTextField : public QLineEdit, public LocalizedWidget {
  Q_OBJECT

 public:
  /// Not localized before its layout awakens it.
  explicit UILocalizedTextField(QWidget* parent = nullptr);
  ~UILocalizedTextField() override;

  /// The field's rules and remembered state. Lives as long as the field.
  [[nodiscard]] orvanta::UILocalizedTextField& control() const override { return *control_; }

 protected:
  /// As of the base class.
  void awake() override;
  /// As of the base class.
  bool event(QEvent* event) override;

 private:
  std::shared_ptr<TextFieldAdapter> adapter_;
  std::unique_ptr<orvanta::UILocalizedTextField> control_;
};

}  // namespace orvanta::qt
