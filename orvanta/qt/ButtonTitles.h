#pragma once

#include <QString>
#include <map>

#include <orvanta/platform/Controls.h>

class QPushButton;

namespace orvanta::qt {

/// The titles of a button in its states, written as Qt writes titles ("&&" for "&"). The button's
/// `text` is the normal title. A `setText` on the button sets the title of every state.
class ButtonTitles {
 public:
  /// `button` must outlive this.
  explicit ButtonTitles(QPushButton& button) : button_(button) {}

  /// The state's own title, else the normal one.
  [[nodiscard]] QString title(platform::ControlState state) const;
  /// A null title takes the state's own title away. False when nothing has changed.
  bool setTitle(platform::ControlState state, const QString& title);
  /// The titles that differ from the normal one are among these.
  [[nodiscard]] const std::map<platform::ControlState, QString>& ownTitles() const;

 private:
  [[nodiscard]] bool textWasSet() const;

  QPushButton& button_;
  // Without the normal title. Replaced by a text that was set on the button since.
  std::map<platform::ControlState, QString> own_;
  QString textAtLastTitle_;
};

}  // namespace orvanta::qt
