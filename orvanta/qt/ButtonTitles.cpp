#include <QPushButton>

#include <orvanta/qt/ButtonTitles.h>

namespace orvanta::qt {

using platform::ControlState;

QString ButtonTitles::title(ControlState state) const {
  const auto own = ownTitles().find(state);
  return own == ownTitles().end() ? button_.text() : own->second;
}

bool ButtonTitles::setTitle(ControlState state, const QString& title) {
  if (textWasSet()) {
    own_.clear();
  }
  bool changes = false;
  if (state == platform::kControlStateNormal) {
    changes = title != button_.text();
    if (changes) {
      button_.setText(title);
    }
  } else if (title.isNull()) {
    changes = own_.erase(state) > 0;
  } else {
    QString& own = own_[state];
    changes = own.isNull() || own != title;
    own = title;
  }
  textAtLastTitle_ = button_.text();
  return changes;
}

const std::map<ControlState, QString>& ButtonTitles::ownTitles() const {
  static const std::map<ControlState, QString> none;
  return textWasSet() ? none : own_;
}

bool ButtonTitles::textWasSet() const {
  return button_.text() != textAtLastTitle_;
}

}  // namespace orvanta::qt
